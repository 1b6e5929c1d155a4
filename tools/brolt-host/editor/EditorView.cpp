// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditorView.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/vst3/Vst3Result.h"

#include <string>

using namespace Steinberg;

namespace {

constexpr std::size_t shownColours = 3; // red, green, blue
constexpr std::size_t drawnColours = 4; // and alpha

IPtr<IPlugView> makeView(Vst::IEditController& controller) {
    IPtr<IPlugView> view = owned(controller.createView(Vst::ViewType::kEditor));
    if (view == nullptr)
        throw HostError("the plug-in has no editor");
    return view;
}

/// By the constant: the interface's own identifier is defined in the library.
IPtr<IQMEditorPicture> extensionOf(IPlugView& view) {
    void* found = nullptr;
    if (view.queryInterface(IQMEditorPicture_iid, &found) != kResultOk)
        return nullptr;
    return owned(static_cast<IQMEditorPicture*>(found));
}

std::vector<std::uint8_t> withoutAlpha(const std::vector<std::uint8_t>& drawn) {
    std::vector<std::uint8_t> shown;
    shown.reserve(drawn.size() / drawnColours * shownColours);
    for (auto pixel = drawn.begin(); pixel != drawn.end(); pixel += drawnColours)
        shown.insert(shown.end(), pixel, pixel + shownColours);
    return shown;
}

} // namespace

EditorView::EditorView(Vst::IEditController& controller)
    : view(makeView(controller))
    , extension(extensionOf(*view)) {}

void EditorView::choose(const ViewOptions& options) {
    if (options.generic) {
        if (extension == nullptr)
            throw HostError("--generic: the plug-in's editor has one form alone");
        requireOk(extension->showGenericEditor(1), "showGenericEditor");
    }
    if (options.magnification) {
        if (extension == nullptr)
            throw HostError("--scale: the plug-in's editor cannot be told its size");
        requireOk(extension->setMagnification(*options.magnification), "setMagnification");
    }
}

ViewSize EditorView::size() const {
    constexpr int32 largest = 16384; // of windows and of what fits into memory
    ViewRect rect;
    requireOk(view->getSize(&rect), "getSize");
    const ViewSize size{rect.getWidth(), rect.getHeight()};
    if (size.width < 1 || size.height < 1 || size.width > largest || size.height > largest) {
        throw HostError("the plug-in's editor claims a size of " + std::to_string(size.width) +
                        " x " + std::to_string(size.height) + " pixels");
    }
    return size;
}

void EditorView::refreshDisplays() {
    if (extension != nullptr)
        requireOk(extension->refreshDisplays(), "refreshDisplays");
}

std::vector<std::uint8_t> EditorView::picture() {
    if (extension == nullptr)
        throw HostError("the plug-in's editor draws no pictures without a window");
    const ViewSize whole = size();
    std::vector<std::uint8_t> drawn(static_cast<std::size_t>(whole.width) *
                                    static_cast<std::size_t>(whole.height) * drawnColours);
    requireOk(extension->drawInto(drawn.data(), whole.width, whole.height), "drawInto");
    return withoutAlpha(drawn);
}
