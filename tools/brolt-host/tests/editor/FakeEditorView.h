// SPDX-License-Identifier: GPL-3.0-or-later
//
// A plug-in's view inside the test: it writes down what its host does and has no window of its own.

#pragma once

#include "QMShell/extensions/IQMEditorPicture.h"
#include "tools/brolt-host/editor/ViewSize.h"

#include <pluginterfaces/base/funknownimpl.h>
#include <pluginterfaces/gui/iplugview.h>

#include <functional>
#include <string>
#include <vector>

/// What the view and, in some tests, its window and plug-in write into.
using CallLog = std::vector<std::string>;

/// "WIDTH x HEIGHT".
std::string sizeText(ViewSize size);

class FakeEditorView
    : public Steinberg::U::ImplementsNonDestroyable<Steinberg::U::Directly<Steinberg::IPlugView>>,
      public IQMEditorPicture {
public:
    explicit FakeEditorView(CallLog& calls)
        : log(calls) {}

    // To be told.
    ViewSize size{320, 200};
    ViewSize largest{1000, 1000}; ///< for checkSizeConstraint
    bool isOurs = true;           ///< knows IQMEditorPicture
    bool isResizable = false;
    std::string refused;                ///< the operation that answers false
    std::function<void()> whenAttached; ///< while attached runs
    std::function<void()> whenSized;    ///< while onSize runs

    // To be asked.
    Steinberg::IPlugFrame* frame = nullptr;

    /// What a controller's createView answers: the view with the caller's reference.
    Steinberg::IPlugView* made() {
        addRef();
        return this;
    }

    Steinberg::tresult PLUGIN_API queryInterface(const Steinberg::TUID id, void** object) override;
    Steinberg::uint32 PLUGIN_API addRef() override;
    Steinberg::uint32 PLUGIN_API release() override;

    Steinberg::tresult PLUGIN_API isPlatformTypeSupported(Steinberg::FIDString type) override;
    Steinberg::tresult PLUGIN_API attached(void* parent, Steinberg::FIDString type) override;
    Steinberg::tresult PLUGIN_API removed() override;
    Steinberg::tresult PLUGIN_API onWheel(float) override;
    Steinberg::tresult PLUGIN_API onKeyDown(Steinberg::char16, Steinberg::int16,
                                            Steinberg::int16) override;
    Steinberg::tresult PLUGIN_API onKeyUp(Steinberg::char16, Steinberg::int16,
                                          Steinberg::int16) override;
    Steinberg::tresult PLUGIN_API getSize(Steinberg::ViewRect* rect) override;
    Steinberg::tresult PLUGIN_API onSize(Steinberg::ViewRect* rect) override;
    Steinberg::tresult PLUGIN_API onFocus(Steinberg::TBool) override;
    Steinberg::tresult PLUGIN_API setFrame(Steinberg::IPlugFrame* newFrame) override;
    Steinberg::tresult PLUGIN_API canResize() override;
    Steinberg::tresult PLUGIN_API checkSizeConstraint(Steinberg::ViewRect* rect) override;

    Steinberg::tresult PLUGIN_API showGenericEditor(Steinberg::TBool generic) override;
    Steinberg::tresult PLUGIN_API setMagnification(Steinberg::int32 percent) override;
    Steinberg::tresult PLUGIN_API refreshDisplays() override;
    /// Pixel number i is red i, green i + 1, blue i + 2, opaque.
    Steinberg::tresult PLUGIN_API drawInto(Steinberg::uint8* pixels, Steinberg::int32 width,
                                           Steinberg::int32 height) override;

private:
    Steinberg::tresult answer(const std::string& operation, const std::string& arguments = {});

    CallLog& log;
    int references = 0;
};
