// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditorFrame.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/vst3/Vst3Result.h"

#include <utility>

using namespace Steinberg;

namespace {

ViewRect rectOf(ViewSize size) {
    return {0, 0, size.width, size.height};
}

} // namespace

EditorFrame::EditorFrame(EditorView editorView, EditorWindow& editorWindow,
                         HostMessages& hostMessages)
    : view(std::move(editorView))
    , window(editorWindow)
    , messages(hostMessages) {
    if (view.plugView().isPlatformTypeSupported(window.platformType()) != kResultOk)
        throw HostError("the plug-in's editor does not know the windows of this system");
    requireOkIfImplemented(view.plugView().setFrame(this), "setFrame");
    try {
        attach();
    } catch (...) {
        view.plugView().setFrame(nullptr);
        throw;
    }
}

EditorFrame::~EditorFrame() {
    window.show(nullptr);
    view.plugView().removed();
    view.plugView().setFrame(nullptr);
}

void EditorFrame::attach() {
    requireOk(view.plugView().attached(window.nativeHandle(), window.platformType()), "attached");
    window.show(this);
}

tresult PLUGIN_API EditorFrame::resizeView(IPlugView* whose, ViewRect* wanted) {
    if (whose != &view.plugView() || wanted == nullptr)
        return kInvalidArgument;
    const ViewSize size{wanted->getWidth(), wanted->getHeight()};
    if (size.width < 1 || size.height < 1)
        return kInvalidArgument;
    // A view that asks again while it is being resized would go on for ever.
    if (isResizing)
        return kResultFalse;
    isResizing = true;
    window.setContentSize(size);
    tresult result = kResultOk;
    if (!viewHas(size)) {
        ViewRect rect = rectOf(size);
        result = view.plugView().onSize(&rect);
    }
    isResizing = false;
    return result;
}

tresult PLUGIN_API EditorFrame::queryInterface(const TUID interfaceID, void** object) {
#ifndef _WIN32
    if (FUnknownPrivate::iidEqual(interfaceID, Linux::IRunLoop::iid))
        return messages.runLoop().queryInterface(interfaceID, object);
#endif
    return EditorFrameBase::queryInterface(interfaceID, object);
}

bool EditorFrame::viewHas(ViewSize size) const {
    ViewRect rect;
    return view.plugView().getSize(&rect) == kResultOk &&
           ViewSize{rect.getWidth(), rect.getHeight()} == size;
}

ViewSize EditorFrame::possibleSize(ViewSize wanted) {
    ViewRect rect = rectOf(wanted);
    if (view.plugView().checkSizeConstraint(&rect) != kResultOk)
        return wanted;
    return {rect.getWidth(), rect.getHeight()};
}

void EditorFrame::contentResized(ViewSize size) {
    ViewRect rect = rectOf(size);
    if (!viewHas(size))
        view.plugView().onSize(&rect);
}
