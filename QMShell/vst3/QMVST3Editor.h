// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's view as a VST3 host sees it, and the GUI holder as the editor sees it.
//   QMVST3Editor.cpp         the host's view
//   QMVST3EditorHolder.cpp   the editor's holder
//
// Threads. Hosts call a view on their window thread; the toolkit's message thread is that thread
// or, on Linux where the host lends no run loop, one of ours. Every entry runs its work as part of
// the message thread's. The holder's operations come from the editor, on the message thread. The
// instance is asked and changed with the adapter's control lock held, the host called without it.
#pragma once

#include <public.sdk/source/common/pluginview.h>

#include <pluginterfaces/gui/iplugviewcontentscalesupport.h>
#include <pluginterfaces/vst/ivstplugview.h>

#include "QMShell/extensions/IQMEditorPicture.h"
#include "QMShell/gui/QMShell_GUI.h"
#include "QMShell/toolkit/ToolkitUse.h"

#include <juce_events/juce_events.h>

#include <memory>

class ContentWrapperComponent;
class QMShellVST3;
class RepaintWithoutVerticalBlank;

class QMVST3Editor final : public Steinberg::CPluginView,
                           public Steinberg::IPlugViewContentScaleSupport,
                           public Steinberg::Vst::IParameterFinder,
                           public IQMEditorPicture,
                           public QMShell_GUI,
                           private juce::Timer {
public:
    using tresult = Steinberg::tresult;
    using int32 = Steinberg::int32;

    /// Keeps the adapter. [message thread]
    QMVST3Editor(QMShellVST3& adapterOfInstance, QMPlugInUIFactory uiFactory);
    ~QMVST3Editor() override;

    // IPlugView. [the host's window thread]

    tresult PLUGIN_API isPlatformTypeSupported(Steinberg::FIDString type) override;
    tresult PLUGIN_API attached(void* parent, Steinberg::FIDString type) override;
    tresult PLUGIN_API removed() override;
    tresult PLUGIN_API getSize(Steinberg::ViewRect* size) override;
    tresult PLUGIN_API onSize(Steinberg::ViewRect* newSize) override;
    tresult PLUGIN_API setFrame(Steinberg::IPlugFrame* newFrame) override;

    // IPlugViewContentScaleSupport: the user chooses the magnification.

    tresult PLUGIN_API setContentScaleFactor(ScaleFactor) override {
        return Steinberg::kResultFalse;
    }

    // IParameterFinder.

    tresult PLUGIN_API findParameter(int32 x, int32 y, Steinberg::Vst::ParamID& tag) override;

    // IQMEditorPicture.

    tresult PLUGIN_API showGenericEditor(Steinberg::TBool generic) override;
    tresult PLUGIN_API setMagnification(int32 percent) override;
    tresult PLUGIN_API refreshDisplays() override;
    tresult PLUGIN_API drawInto(Steinberg::uint8* pixels, int32 width, int32 height) override;

    // QMShell_GUI. [message thread]

    [[nodiscard]] std::recursive_mutex* controlLock() override;
    [[nodiscard]] INoxPlugIn* plugIn() override;
    bool setViewContainerSize(std::int32_t height, std::int32_t width) override;
    void setHelpEnabled(bool on) override;
    [[nodiscard]] double sampleRate() override;
    [[nodiscard]] double tempo() override;
    /// The speaker arrangement of the main input's bus; the output's is always the same.
    [[nodiscard]] std::int32_t inputFormat() override;

    [[nodiscard]] std::int32_t outputFormat() override { return inputFormat(); }

    bool handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys& modifiers) override;
    void setParameterValue(FourCharCode id, double plain) override;
    void parameterChanged(FourCharCode id) override;
    [[nodiscard]] float parameterValue(FourCharCode id) override;
    void beginParameterGesture(FourCharCode id) override;
    void endParameterGesture(FourCharCode id) override;

    OBJ_METHODS(QMVST3Editor, Steinberg::CPluginView)
    DEFINE_INTERFACES
    DEF_INTERFACE(Steinberg::IPlugViewContentScaleSupport)
    DEF_INTERFACE(Steinberg::Vst::IParameterFinder)
    DEF_INTERFACE(IQMEditorPicture)
    END_DEFINE_INTERFACES(Steinberg::CPluginView)
    REFCOUNT_METHODS(Steinberg::CPluginView)

private:
    /// Some hosts apply an editor's size reliably only a moment after they have attached it.
    void timerCallback() override;

    /// As part of the message thread's work; what it throws ends here.
    template <typename Work>
    tresult onMessageThread(const char* entry, Work work) noexcept;

    ContentWrapperComponent& makeContent();

    Steinberg::IPtr<QMShellVST3> adapter;
    Steinberg::IPtr<Steinberg::IPlugFrame> frame;
    ToolkitUse toolkit;
    std::unique_ptr<ToolkitUse> toolkitOfFrame; ///< with the frame's run loop
    std::unique_ptr<RepaintWithoutVerticalBlank> repainting;
    std::unique_ptr<ContentWrapperComponent> content;
};
