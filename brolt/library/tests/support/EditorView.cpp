// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/EditorView.h"

#include "services/tests/TemporaryDirectory.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

using Steinberg::int32;
using Steinberg::kResultOk;
using Steinberg::tresult;
using Steinberg::ViewRect;

DEF_CLASS_IID(IQMEditorPicture)

namespace {

/// Editors open in the size that the user chose last. A home of the tests' own keeps them from
/// reading it, and from ever writing it.
class TestHome {
#ifndef _WIN32
public:
    TestHome() {
        const char* const before = std::getenv("HOME");
        // The key to the user's own screen is found by this folder, too.
        if (before != nullptr)
            setenv("XAUTHORITY", (std::string(before) + "/.Xauthority").c_str(), 0);
        setenv("HOME", home.path().c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DATA_HOME");
    }

private:
    TemporaryDirectory home;
#endif
};

[[maybe_unused]] const TestHome testHome;

constexpr std::size_t bytesPerPixel = 4;

/// Finer than the gap between a control and its readout.
constexpr int scanStep = 3;

} // namespace

bool EditorPicture::isOpaque() const {
    for (std::size_t i = bytesPerPixel - 1; i < pixels.size(); i += bytesPerPixel) {
        if (pixels[i] != 0xFF)
            return false;
    }
    return true;
}

bool EditorPicture::isOneColour() const {
    for (std::size_t i = bytesPerPixel; i < pixels.size(); ++i) {
        if (pixels[i] != pixels[i - bytesPerPixel])
            return false;
    }
    return true;
}

EditorPicture EditorPicture::part(EditorArea area) const {
    EditorPicture result{{area.right - area.left, area.bottom - area.top}, {}};
    for (int y = area.top; y < area.bottom; ++y) {
        const auto offset = [&](int x) {
            return (static_cast<std::ptrdiff_t>(y) * size.width + x) *
                   static_cast<std::ptrdiff_t>(bytesPerPixel);
        };
        result.pixels.insert(result.pixels.end(), pixels.begin() + offset(area.left),
                             pixels.begin() + offset(area.right));
    }
    return result;
}

EditorView::EditorView(Vst::IEditController& controller)
    : view(Steinberg::owned(controller.createView(Vst::ViewType::kEditor))) {
    if (!view)
        throw std::runtime_error("the plug-in made no view");
}

EditorSize EditorView::size() {
    ViewRect rect;
    if (view->getSize(&rect) != kResultOk)
        throw std::runtime_error("the view does not tell its size");
    return {rect.getWidth(), rect.getHeight()};
}

tresult EditorView::giveSize(EditorSize size, EditorPoint corner) {
    ViewRect rect(corner.x, corner.y, corner.x + size.width, corner.y + size.height);
    return view->onSize(&rect);
}

std::optional<Vst::ParamID> EditorView::parameterAt(EditorPoint point) {
    constexpr Vst::ParamID untouched = 4711;
    Vst::ParamID id = untouched;
    const tresult answer = as<Vst::IParameterFinder>()->findParameter(point.x, point.y, id);
    if (answer == kResultOk)
        return id;
    if (id != untouched)
        throw std::runtime_error("a parameter came with a failure");
    return {};
}

std::vector<EditorArea> EditorView::areasOf(Vst::ParamID id) {
    std::vector<EditorArea> areas;
    const EditorSize whole = size();
    // Large editors have large controls.
    const int step = std::max(scanStep, whole.width / 160);
    for (int y = 0; y < whole.height; y += step) {
        for (int x = 0; x < whole.width; x += step) {
            if (parameterAt({x, y}) != id)
                continue;
            if (areas.empty() || areas.back().bottom + step <= y)
                areas.push_back({x, y, x + 1, y + 1});
            EditorArea& area = areas.back();
            area.left = std::min(area.left, x);
            area.right = std::max(area.right, x + 1);
            area.bottom = y + 1;
        }
    }
    return areas;
}

EditorKnob EditorView::knobOf(Vst::ParamID id) {
    // Design units: a readout of 18 on a knob of 100 with its caption.
    constexpr int readoutHeight = 18;
    constexpr int knobHeight = 100;
    const std::vector<EditorArea> areas = areasOf(id);
    if (areas.size() != 1)
        throw std::runtime_error("this is not the product's editor");
    const EditorArea both = areas.front();
    const int height = both.bottom - both.top;
    const int middle = both.top + height * readoutHeight / (readoutHeight + knobHeight);
    EditorArea readout = both;
    EditorArea knob = both;
    readout.bottom = middle;
    knob.top = middle;
    return {readout, knob};
}

EditorPicture EditorView::picture() {
    EditorPicture result{size(), {}};
    result.pixels.resize(bytesPerPixel * static_cast<std::size_t>(result.size.width) *
                         static_cast<std::size_t>(result.size.height));
    if (as<IQMEditorPicture>()->drawInto(result.pixels.data(), result.size.width,
                                         result.size.height) != kResultOk)
        throw std::runtime_error("the view drew no picture");
    return result;
}

tresult EditorView::magnify(int32 percent) {
    return as<IQMEditorPicture>()->setMagnification(percent);
}
