// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's view in the hands of a host that looks closely: where which parameter is, and
// pictures to compare. Coordinates are the view's, in pixels.
#pragma once

#include "QMShell/extensions/IQMEditorPicture.h"
#include "brolt/library/tests/support/Vst3.h"

#include <pluginterfaces/gui/iplugview.h>
#include <pluginterfaces/vst/ivstplugview.h>

#include <cstdint>
#include <optional>
#include <vector>

struct EditorPoint {
    int x = 0;
    int y = 0;

    [[nodiscard]] EditorPoint movedUp(int pixels) const { return {x, y - pixels}; }
};

struct EditorSize {
    int width = 0;
    int height = 0;

    bool operator==(const EditorSize&) const = default;
};

/// Right and bottom are just outside.
struct EditorArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] EditorPoint centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
};

struct EditorPicture {
    EditorSize size;
    std::vector<std::uint8_t> pixels; ///< red, green, blue, alpha; rows from the top

    bool operator==(const EditorPicture&) const = default;

    [[nodiscard]] bool isOpaque() const;
    [[nodiscard]] bool isOneColour() const;
    [[nodiscard]] EditorPicture part(EditorArea area) const;
};

struct EditorKnob {
    EditorArea readout;
    EditorArea knob;
};

class EditorView {
public:
    /// Throws std::runtime_error where there is no view.
    explicit EditorView(Vst::IEditController& controller);

    [[nodiscard]] Steinberg::IPlugView& plugView() { return *view; }

    /// Another interface of the view; null where it has none.
    template <typename Interface>
    [[nodiscard]] Steinberg::FUnknownPtr<Interface> as() {
        return Steinberg::FUnknownPtr<Interface>(view);
    }

    [[nodiscard]] EditorSize size();

    /// Of this width and height, with its corner where it was put.
    Steinberg::tresult giveSize(EditorSize size, EditorPoint corner = {});

    [[nodiscard]] std::optional<Vst::ParamID> parameterAt(EditorPoint point);
    /// Where a parameter is found, from the top. The generic editor has a control and its readout
    /// apart; in the product's they touch.
    [[nodiscard]] std::vector<EditorArea> areasOf(Vst::ParamID id);

    /// A knob of the product's editor.
    [[nodiscard]] EditorKnob knobOf(Vst::ParamID id);

    [[nodiscard]] EditorPicture picture();

    [[nodiscard]] EditorPicture picture(EditorArea area) { return picture().part(area); }

    /// Asks for another magnification, in percent.
    Steinberg::tresult magnify(Steinberg::int32 percent);

private:
    Steinberg::IPtr<Steinberg::IPlugView> view;
};
