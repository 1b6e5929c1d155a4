// SPDX-License-Identifier: GPL-3.0-or-later
// Life, size and looks of the editor. Its parameters are in QMPlugInUIParameters.cpp.
#include "widgets/ui/QMPlugInUI.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInEnvironment.h"
#include "services/preferences/EditorPreferences.h"
#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/IQMParameterController.h"
#include "widgets/base/QMWidget.h"
#include "widgets/images/ScaledImageCache.h"
#include "widgets/ui/IQMPlugInUIHost.h"
#include "widgets/ui/LayoutDump.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>

namespace {

/// Where nobody knows how large the screen is.
constexpr float unlimitedMagnification = 1000.0F;

/// A display that did not move for so long does not run after what it missed.
constexpr double longestGap = 1.0; // seconds

double toolkitSeconds() {
    return juce::Time::getMillisecondCounterHiRes() * 0.001;
}

} // namespace

QMPlugInUI::QMPlugInUI(INoxPlugIn& plugIn, IQMPlugInUIHost* hostOfUI)
    : instanceAccess(plugIn)
    , host(hostOfUI)
    , handler(&plugIn, *this, &instanceAccess.controlLock())
    , clock(toolkitSeconds) {
    setOpaque(true);
    setTitle(juce::String::fromUTF8(plugInName().c_str()));
    const std::scoped_lock lock(instanceAccess.controlLock());
    meterRecords.resize(static_cast<std::size_t>(std::max(0, plugIn.meterRecordCount())));
    plugIn.copyMeterRecords(meterRecords.data(), static_cast<std::int32_t>(meterRecords.size()));
    if (INoxPlugInEnvironment* const environment = instanceAccess.environment())
        environment->addListener(handler);
    connected = true;
}

QMPlugInUI::~QMPlugInUI() {
    disconnect();
}

void QMPlugInUI::disconnect() {
    if (!connected)
        return;
    connected = false;
    if (INoxPlugInEnvironment* const environment = instanceAccess.environment()) {
        const std::scoped_lock lock(instanceAccess.controlLock());
        environment->removeListener(handler);
    }
    setLayoutEditing(false);
    for (const auto& [index, place] : widgetMap.widgetsByParameter()) {
        place.widget->setGestureListener({});
        place.widget->setParameterController(nullptr);
    }
    gestures.endAll(controller());
}

IQMParameterController* QMPlugInUI::controller() const {
    return host == nullptr ? nullptr : host->parameterController();
}

void QMPlugInUI::setHelpEnabled(bool on) {
    if (host != nullptr)
        host->setHelpEnabled(on);
}

// Size.

float QMPlugInUI::magnificationLimit() const {
    const juce::Rectangle<int> design = getDesignSize();
    const juce::Rectangle<int> available =
        host == nullptr ? juce::Rectangle<int>() : host->availableArea();
    if (design.isEmpty() || available.isEmpty())
        return unlimitedMagnification;
    const auto ratio = [](int length, int of) {
        return static_cast<float>(length) / static_cast<float>(of);
    };
    return std::min(ratio(available.getHeight(), design.getHeight()),
                    ratio(available.getWidth(), design.getWidth()));
}

void QMPlugInUI::setMagnification(float factor) {
    if (factor == magnification || !(factor > 0.0F))
        return;
    magnification = std::min(factor, magnificationLimit());
    placeContents();
    setSize(getScaledSize().getWidth(), getScaledSize().getHeight());
}

void QMPlugInUI::setScalePercent(std::int32_t percent) {
    if (percent != scalePercent && percent > 0)
        applyScalePercent(percent, Keep::yes);
}

void QMPlugInUI::applyScalePercent(std::int32_t percent, Keep keep) {
    scalePercent = percent;
    setMagnification(static_cast<float>(percent / 100.0));
    // Widgets may have been made at this factor already, on a screen that is too small for it.
    setMagnification(std::min(magnification, magnificationLimit()));
    const juce::Rectangle<int> size = getScaledSize();
    setSize(size.getWidth(), size.getHeight());
    if (host != nullptr)
        host->setUIArea(size);
    repaint();
    if (keep == Keep::yes && !sizeKey.empty())
        QM::writeMagnification(sizeKey, scalePercent);
}

// Displays.

void QMPlugInUI::addDisplay(IQMDisplayWidget& display) {
    displays.push_back(&display);
}

void QMPlugInUI::tick() {
    const double now = clock();
    const bool follows = now - lastTick < longestGap;
    lastTick = now;
    refreshMeterRecords();
    if (!follows)
        return;
    for (IQMDisplayWidget* const display : displays)
        display->tick();
}

void QMPlugInUI::refreshMeterRecords() {
    if (const QMPlugInAccess::Hold plugIn = instanceAccess.hold()) {
        plugIn->updateMeters();
        plugIn->copyMeterRecords(meterRecords.data(),
                                 static_cast<std::int32_t>(meterRecords.size()));
    }
}

// Looks.

void QMPlugInUI::paint(juce::Graphics& g) {
    const juce::Image image = backgroundImage();
    if (image.isNull() || image.hasAlphaChannel())
        paintShading(g);
    if (image.isValid())
        paintImage(g, image);
}

void QMPlugInUI::paintShading(juce::Graphics& g) const {
    const juce::Colour base = getBaseColour();
    g.setGradientFill(juce::ColourGradient::vertical(base.brighter(0.1F), 0.0F, base.darker(0.35F),
                                                     static_cast<float>(getHeight())));
    g.fillAll();
}

void QMPlugInUI::paintImage(juce::Graphics& g, const juce::Image& image) const {
    const double pixels = g.getInternalContext().getPhysicalPixelScaleFactor();
    juce::Image copy = scaledImage(backgroundName(), image, getWidth() * pixels / image.getWidth(),
                                   getHeight() * pixels / image.getHeight());
    if (copy.isNull())
        return;
    if (copy != image)
        copy.getProperties()->set("opaque", true);
    g.drawImage(copy, getLocalBounds().toFloat());
}

// Layout.

std::vector<const QMWidget*> QMPlugInUI::laidOutWidgets() const {
    std::vector<const QMWidget*> widgets;
    for (const juce::Component* const child : getChildren()) {
        if (const auto* const widget = dynamic_cast<const QMWidget*>(child))
            widgets.push_back(widget);
    }
    return widgets;
}

std::string QMPlugInUI::layoutDump() const {
    std::vector<ZulControlAreaDescriptor> entries;
    for (const QMWidget* const widget : laidOutWidgets()) {
        const auto area = WidgetPlacement::unscaled(widget->getBounds(), magnification);
        entries.push_back(
            {widget->getWidgetID(), area.getY(), area.getX(), area.getWidth(), area.getHeight()});
    }
    return layoutTableText(entries);
}

void QMPlugInUI::dumpLayout() const {
    print(layoutDump());
}
