// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/QMVST3Editor.h"

#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/toolkit/HostKind.h"
#include "QMShell/toolkit/RepaintWithoutVerticalBlank.h"
#include "QMShell/vst3/ContentWrapperComponent.h"
#include "QMShell/vst3/HostBoundary.h"
#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/Vst3RunLoop.h"
#include "widgets/ui/IQMPlugInUI.h"

#include <cstdlib>
#include <utility>

using namespace Steinberg;
using namespace Steinberg::Vst;

DEF_CLASS_IID(IQMEditorPicture)

namespace {

constexpr int sizeAgainMs = 200;

/// A host's size that differs by less is our own, told back to us rounded.
constexpr int sizeTolerance = 3;

constexpr tresult failed = kResultFalse;

const FIDString supportedPlatform =
#ifdef _WIN32
    kPlatformTypeHWND;
#else
    kPlatformTypeX11EmbedWindowID;
#endif

} // namespace

QMVST3Editor::QMVST3Editor(QMShellVST3& adapterOfInstance, QMPlugInUIFactory uiFactory)
    : QMShell_GUI(std::move(uiFactory))
    , adapter(&adapterOfInstance) {
    ToolkitUse::run([this] { repainting = std::make_unique<RepaintWithoutVerticalBlank>(); });
}

QMVST3Editor::~QMVST3Editor() {
    ToolkitUse::run([this] {
        stopTimer();
        content.reset();
        repainting.reset();
    });
}

template <typename Work>
tresult QMVST3Editor::onMessageThread(const char* entry, Work work) noexcept {
    return contained(entry, failed, [&] {
        tresult answer = failed;
        ToolkitUse::run(
            [&] { answer = contained(entry, failed, [&]() -> tresult { return work(); }); });
        return answer;
    });
}

ContentWrapperComponent& QMVST3Editor::makeContent() {
    if (!content)
        content = std::make_unique<ContentWrapperComponent>(*this);
    return *content;
}

tresult PLUGIN_API QMVST3Editor::isPlatformTypeSupported(FIDString type) {
    return type != nullptr && FIDStringsEqual(type, supportedPlatform) ? kResultOk : kResultFalse;
}

tresult PLUGIN_API QMVST3Editor::attached(void* parent, FIDString type) {
    if (parent == nullptr)
        return kResultFalse;
    if (const tresult supported = isPlatformTypeSupported(type); supported != kResultOk)
        return supported;
    return onMessageThread("QMVST3Editor::attached", [&] {
        makeContent().attachTo(parent);
        CPluginView::attached(parent, type);
        if (wantsEditorSizeAgain(hostKind()))
            startTimer(sizeAgainMs);
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::removed() {
    return onMessageThread("QMVST3Editor::removed", [&] {
        stopTimer();
        if (content)
            content->detach();
        return CPluginView::removed();
    });
}

tresult PLUGIN_API QMVST3Editor::getSize(ViewRect* size) {
    if (size == nullptr)
        return kInvalidArgument;
    return onMessageThread("QMVST3Editor::getSize", [&] {
        const QMShell_ViewComponent& shown = makeContent().view();
        *size = ViewRect(0, 0, shown.getWidth(), shown.getHeight());
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::onSize(ViewRect* newSize) {
    if (newSize == nullptr)
        return kInvalidArgument;
    return onMessageThread("QMVST3Editor::onSize", [&] {
        setRect(*newSize);
        if (!content)
            return kResultOk;
        const QMShell_ViewComponent& shown = content->view();
        int width = newSize->getWidth();
        int height = newSize->getHeight();
        // Else host and editor would go on correcting each other.
        if (std::abs(width - shown.getWidth()) < sizeTolerance &&
            std::abs(height - shown.getHeight()) < sizeTolerance) {
            width = shown.getWidth();
            height = shown.getHeight();
        }
        content->giveBounds({newSize->left, newSize->top, width, height});
        content->repaint();
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::setFrame(IPlugFrame* newFrame) {
    return contained("QMVST3Editor::setFrame", failed, [&]() -> tresult {
        if (newFrame == frame.get())
            return kResultOk;
        auto runLoop = runLoopOfHost(newFrame);
        auto next = runLoop ? std::make_unique<ToolkitUse>(std::move(runLoop)) : nullptr;
        toolkitOfFrame = std::move(next);
        frame = newFrame;
        CPluginView::setFrame(newFrame);
        return kResultOk;
    });
}

void QMVST3Editor::timerCallback() {
    stopTimer();
    ViewRect size;
    if (getSize(&size) == kResultOk)
        onSize(&size);
}

tresult PLUGIN_API QMVST3Editor::findParameter(int32 x, int32 y, ParamID& tag) {
    return onMessageThread("QMVST3Editor::findParameter", [&] {
        IQMPlugInUI* const ui = content ? content->view().ui() : nullptr;
        if (ui == nullptr)
            return kResultFalse;
        const std::int32_t index =
            ui->parameterAt(ui->component().getLocalPoint(content.get(), juce::Point<int>(x, y)));
        if (index == -1)
            return kResultFalse;
        tag = static_cast<ParamID>(index);
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::showGenericEditor(TBool generic) {
    return onMessageThread("QMVST3Editor::showGenericEditor", [&] {
        QMShell_ViewComponent& view = makeContent().view();
        view.showUI(generic != 0 ? PlugInUINumber::generic : PlugInUINumber::product);
        return view.ui() != nullptr ? kResultOk : kResultFalse;
    });
}

tresult PLUGIN_API QMVST3Editor::setMagnification(int32 percent) {
    if (percent < 1)
        return kInvalidArgument;
    return onMessageThread("QMVST3Editor::setMagnification", [&] {
        QMShell_ViewComponent& view = makeContent().view();
        if (view.ui() == nullptr)
            return kResultFalse;
        view.ui()->setMagnification(static_cast<float>(percent) / 100.0f);
        view.setUIArea(view.ui()->getScaledSize());
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::refreshDisplays() {
    return onMessageThread("QMVST3Editor::refreshDisplays", [&] {
        makeContent().view().tick();
        return kResultOk;
    });
}

tresult PLUGIN_API QMVST3Editor::drawInto(uint8* pixels, int32 width, int32 height) {
    return onMessageThread("QMVST3Editor::drawInto", [&] {
        QMShell_ViewComponent& shown = makeContent().view();
        if (pixels == nullptr || width != shown.getWidth() || height != shown.getHeight())
            return kInvalidArgument;
        const juce::Image picture = shown.createComponentSnapshot(shown.getLocalBounds(), false);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const juce::Colour colour = picture.getPixelAt(x, y);
                *pixels++ = colour.getRed();
                *pixels++ = colour.getGreen();
                *pixels++ = colour.getBlue();
                *pixels++ = 0xFF;
            }
        }
        return kResultOk;
    });
}
