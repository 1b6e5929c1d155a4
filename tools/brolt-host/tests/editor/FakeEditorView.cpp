// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/tests/editor/FakeEditorView.h"

#include <algorithm>

using namespace Steinberg;

std::string sizeText(ViewSize size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

tresult FakeEditorView::answer(const std::string& operation, const std::string& arguments) {
    log.push_back(arguments.empty() ? operation : operation + " " + arguments);
    return refused == operation ? kResultFalse : kResultOk;
}

tresult PLUGIN_API FakeEditorView::queryInterface(const TUID id, void** object) {
    *object = nullptr;
    if (FUnknownPrivate::iidEqual(id, IPlugView_iid))
        *object = static_cast<IPlugView*>(this);
    else if (isOurs && FUnknownPrivate::iidEqual(id, IQMEditorPicture_iid))
        *object = static_cast<IQMEditorPicture*>(this);
    if (*object == nullptr)
        return kNoInterface;
    addRef();
    return kResultOk;
}

uint32 PLUGIN_API FakeEditorView::addRef() {
    return static_cast<uint32>(++references);
}

uint32 PLUGIN_API FakeEditorView::release() {
    if (--references == 0)
        log.emplace_back("released");
    return static_cast<uint32>(references);
}

tresult PLUGIN_API FakeEditorView::isPlatformTypeSupported(FIDString type) {
    return answer("isPlatformTypeSupported", type);
}

tresult PLUGIN_API FakeEditorView::attached(void* parent, FIDString type) {
    const tresult result = answer("attached", std::string(parent != nullptr ? "" : "null ") + type);
    if (whenAttached)
        whenAttached();
    return result;
}

tresult PLUGIN_API FakeEditorView::removed() {
    return answer("removed");
}

tresult PLUGIN_API FakeEditorView::onWheel(float) {
    return kResultFalse;
}

tresult PLUGIN_API FakeEditorView::onKeyDown(char16, int16, int16) {
    return kResultFalse;
}

tresult PLUGIN_API FakeEditorView::onKeyUp(char16, int16, int16) {
    return kResultFalse;
}

tresult PLUGIN_API FakeEditorView::getSize(ViewRect* rect) {
    *rect = {0, 0, size.width, size.height};
    return refused == "getSize" ? kResultFalse : kResultOk;
}

tresult PLUGIN_API FakeEditorView::onSize(ViewRect* rect) {
    size = {rect->getWidth(), rect->getHeight()};
    const tresult result = answer("onSize", sizeText(size));
    if (whenSized)
        whenSized();
    return result;
}

tresult PLUGIN_API FakeEditorView::onFocus(TBool) {
    return kResultOk;
}

tresult PLUGIN_API FakeEditorView::setFrame(IPlugFrame* newFrame) {
    frame = newFrame;
    return answer("setFrame", newFrame != nullptr ? "some" : "none");
}

tresult PLUGIN_API FakeEditorView::canResize() {
    return isResizable ? kResultTrue : kResultFalse;
}

tresult PLUGIN_API FakeEditorView::checkSizeConstraint(ViewRect* rect) {
    *rect = {0, 0, std::min(rect->getWidth(), largest.width),
             std::min(rect->getHeight(), largest.height)};
    return kResultTrue;
}

tresult PLUGIN_API FakeEditorView::showGenericEditor(TBool generic) {
    return answer("showGenericEditor", std::to_string(generic));
}

tresult PLUGIN_API FakeEditorView::setMagnification(int32 percent) {
    return answer("setMagnification", std::to_string(percent));
}

tresult PLUGIN_API FakeEditorView::refreshDisplays() {
    return answer("refreshDisplays");
}

tresult PLUGIN_API FakeEditorView::drawInto(uint8* pixels, int32 width, int32 height) {
    for (int32 i = 0; i < width * height; ++i) {
        for (int32 colour = 0; colour < 3; ++colour)
            *pixels++ = static_cast<uint8>(i + colour);
        *pixels++ = 255;
    }
    return answer("drawInto", sizeText({width, height}));
}
