// SPDX-License-Identifier: GPL-3.0-or-later
// The one component that an adapter puts into a host's window: the header, where the product has
// one, above the plug-in's editor. It makes the editor for the instance there is, makes another
// when the host has replaced that (mono to stereo, say), and has the timer by which displays follow
// the sound.
//
// The instance is the host's and may go at any time but while its control lock is held; see
// QMPlugInAccess. So the view only compares the pointer it keeps. [message thread]
#pragma once

#include "QMShell/gui/QMShellParameterController.h"
#include "QMShell/gui/QMShellViewHeader.h"
#include "widgets/base/QMCachingComponentInterface.h"
#include "widgets/ui/QMPlugInUIFactory.h"
#include "widgets/ui/QMPlugInUIHolder.h"
#include "widgets/ui/QMPlugInUIHost.h"

#include <functional>
#include <memory>

class IQMPlugInUI;
class QMShell_GUI;

class QMShell_ViewComponent final : public juce::Component,
                                    private juce::Timer,
                                    public QMCachingComponentInterface,
                                    public QMPlugInUIHost {
public:
    /// Height and width of the whole view, in pixels.
    using SizeListener = std::function<void(std::int32_t height, std::int32_t width)>;

    /// Shows the holder's instance at once. The holder must outlive the view; the header, which may
    /// be null, has its height already.
    QMShell_ViewComponent(QMShell_GUI& holderOfView, QMPlugInUIFactory uiFactory,
                          std::unique_ptr<QMShellViewHeader> viewHeader = nullptr);
    ~QMShell_ViewComponent() override;

    /// Told when the view wants another size than it had.
    void setSizeListener(SizeListener listener) { sizeListener = std::move(listener); }

    [[nodiscard]] IQMPlugInUI* ui() const { return pluginUI.get(); }

    /// Which editor is shown; the one that every product has where the product has no such editor.
    void showUI(PlugInUINumber number);

    [[nodiscard]] PlugInUINumber shownUI() const { return uiNumber; }

    /// What the timer does every 30 ms.
    void tick();

    // QMPlugInUIHost.

    void setPlugIn(INoxPlugIn* newPlugIn) override;
    void closeUI() override;
    bool setUIArea(juce::Rectangle<int> area) override;
    void setHelpEnabled(bool on) override;
    void parameterChanged(std::int32_t index) override;
    void setExtraWidth(std::int32_t width) override;
    std::int32_t setParameterByName(const juce::String& name, double value) override;

    [[nodiscard]] INoxPlugIn* plugIn() const override { return shownPlugIn; }

    [[nodiscard]] IQMParameterController* parameterController() override { return &controller; }

    // Components.

    void dropCachedDrawing() override { repaint(); }

    void resized() override;

protected:
    [[nodiscard]] const juce::Component& viewOnScreen() const override { return *this; }

private:
    void timerCallback() override { tick(); }

    void connect(INoxPlugIn* newPlugIn);
    void layOut();

    QMShell_GUI& gui;
    QMPlugInUIFactory makeUI;
    QMShellParameterController controller;
    std::unique_ptr<QMShellViewHeader> header;
    QMPlugInUIHolder holder;
    INoxPlugIn* shownPlugIn = nullptr; ///< compared, not used
    std::unique_ptr<IQMPlugInUI> pluginUI;
    PlugInUINumber uiNumber = PlugInUINumber::product;
    juce::Rectangle<int> uiArea;
    std::int32_t extraWidth = 0;
    SizeListener sizeListener;
    bool isConnecting = false;
    bool isLayingOut = false;
};
