// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/gui/QMShell_ViewComponent.h"

#include "QMShell/gui/QMShell_GUI.h"
#include "plugin-model/INoxPlugIn.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/ui/IQMPlugInUI.h"

#include <algorithm>
#include <mutex>
#include <string>

namespace {

constexpr int refreshMs = 30;

/// The control lock of the instance, where there is one, for as long as this lives.
[[nodiscard]] std::unique_lock<std::recursive_mutex> held(QMShell_GUI& gui) {
    std::recursive_mutex* const lock = gui.controlLock();
    return lock == nullptr ? std::unique_lock<std::recursive_mutex>() : std::unique_lock(*lock);
}

FourCharCode parameterOfName(const juce::String& name) {
    if (name == "MasterBypassID")
        return fourCharCode("mbyp");
    std::string text = name.toStdString();
    text.resize(4, ' ');
    FourCharCode code = 0;
    for (const char character : text)
        code = (code << 8) | static_cast<unsigned char>(character);
    return code;
}

} // namespace

QMShell_ViewComponent::QMShell_ViewComponent(QMShell_GUI& holderOfView, QMPlugInUIFactory uiFactory,
                                             std::unique_ptr<QMShellViewHeader> viewHeader)
    : gui(holderOfView)
    , makeUI(std::move(uiFactory))
    , controller(holderOfView)
    , header(std::move(viewHeader)) {
    setOpaque(true);
    // A file that was missing or damaged may have been put right since the last editor.
    retryFailedImages();
    if (header)
        addAndMakeVisible(*header);
    addAndMakeVisible(holder);
    setPlugIn(gui.plugIn());
    startTimer(refreshMs);
}

QMShell_ViewComponent::~QMShell_ViewComponent() {
    stopTimer();
    closeUI();
}

void QMShell_ViewComponent::tick() {
    INoxPlugIn* const current = gui.plugIn();
    const bool isCurrent = pluginUI ? pluginUI->belongsTo(current) : current == nullptr;
    if (!isCurrent) {
        // Replaced, perhaps by one at the same address.
        closeUI();
        shownPlugIn = nullptr;
        setPlugIn(current);
    }
    if (pluginUI)
        pluginUI->tick();
}

void QMShell_ViewComponent::showUI(PlugInUINumber number) {
    if (number == uiNumber)
        return;
    uiNumber = number;
    closeUI();
    setPlugIn(gui.plugIn());
}

void QMShell_ViewComponent::setPlugIn(INoxPlugIn* newPlugIn) {
    if (newPlugIn != shownPlugIn)
        closeUI();
    if (!pluginUI)
        connect(newPlugIn);
    if (pluginUI)
        uiArea = pluginUI->getScaledSize();
    layOut();
}

void QMShell_ViewComponent::connect(INoxPlugIn* newPlugIn) {
    isConnecting = true;
    {
        const auto lock = held(gui);
        // It may have gone since somebody asked for it.
        shownPlugIn = gui.plugIn() == newPlugIn ? newPlugIn : nullptr;
        if (shownPlugIn != nullptr) {
            pluginUI = makeUI(*shownPlugIn, this, uiNumber);
            if (!pluginUI && uiNumber != PlugInUINumber::generic)
                pluginUI = makeUI(*shownPlugIn, this, PlugInUINumber::generic);
        }
    }
    if (header) {
        header->setPlugIn(shownPlugIn);
        header->setUI(pluginUI.get());
    }
    if (pluginUI) {
        pluginUI->setupAfterCreation();
        holder.setUI(pluginUI.get());
    }
    isConnecting = false;
}

void QMShell_ViewComponent::closeUI() {
    if (!pluginUI)
        return;
    holder.setUI(nullptr);
    if (header)
        header->setUI(nullptr);
    pluginUI.reset();
}

bool QMShell_ViewComponent::setUIArea(juce::Rectangle<int> area) {
    if (area != uiArea) {
        uiArea = area;
        if (!isConnecting)
            layOut();
    }
    return true;
}

void QMShell_ViewComponent::setExtraWidth(std::int32_t width) {
    if (width == extraWidth)
        return;
    extraWidth = width;
    layOut();
}

void QMShell_ViewComponent::layOut() {
    const std::int32_t headerWidth = header ? header->minimumWidth() : 0;
    const std::int32_t headerHeight = header ? header->getHeight() : 0;
    const std::int32_t width = std::max(headerWidth, uiArea.getWidth() + extraWidth);
    const juce::Rectangle<int> before = getLocalBounds();
    isLayingOut = true;
    setSize(width, headerHeight + uiArea.getHeight());
    isLayingOut = false;
    resized();
    if (sizeListener && getLocalBounds() != before)
        sizeListener(getHeight(), getWidth());
}

void QMShell_ViewComponent::resized() {
    if (isLayingOut)
        return;
    const int headerHeight = header ? header->getHeight() : 0;
    if (header)
        header->setSize(getWidth(), headerHeight);
    const juce::Rectangle<int> area(0, headerHeight, std::max(0, getWidth() - extraWidth),
                                    std::max(0, getHeight() - headerHeight));
    if (holder.getBounds() == area)
        holder.resized();
    else
        holder.setBounds(area);
}

void QMShell_ViewComponent::setHelpEnabled(bool on) {
    gui.setHelpEnabled(on);
}

void QMShell_ViewComponent::parameterChanged(std::int32_t index) {
    if (header)
        header->parameterChanged(index);
}

std::int32_t QMShell_ViewComponent::setParameterByName(const juce::String& name, double value) {
    const auto lock = held(gui);
    INoxPlugIn* const current = gui.plugIn();
    const std::int32_t index = current == nullptr ? -1 : current->indexOfID(parameterOfName(name));
    if (index < 0)
        return 0;
    current->setParameterValue(index, value);
    return 1;
}
