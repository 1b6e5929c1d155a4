// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/QMBroltUI.h"

#include "brolt/editor/EditorTables.h"
#include "plugin-model/INoxPlugIn.h"
#include "services/preferences/EditorPreferences.h"
#include "widgets/controls/QMParameterControlWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/library/WidgetLibrary.h"
#include "widgets/meters/QMMeterWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"

namespace {

constexpr const char* preferencesPrefix = "QMBLT";
constexpr const char* keyOfSize = "BROLT_SML";
constexpr float firstMagnification = 1.2F;

// Percent.
constexpr std::int32_t smallestStep = 40;
constexpr std::int32_t largestStep = 250;
constexpr std::int32_t stepWidth = 10;

/// The meters' second value is their mode; 0 holds peaks for two seconds.
constexpr std::uint32_t meterModeSlot = 1;
constexpr double holdingMode = 0.0;

// A fader's readout stands in the fader's upper part. Its frame comes below the fader's caption,
// which reaches 20 units below the readout's upper edge. Design units.
constexpr double readoutPartOfFader = 0.57;
constexpr int readoutShift = 3;
constexpr int readoutTop = 12;
constexpr int frameTop = 22;
constexpr int frameHeight = 18;

/// Colours as bright as this and darker ones are dark.
constexpr float brightestDark = 0.5F;

std::vector<std::int32_t> steps() {
    std::vector<std::int32_t> all;
    for (std::int32_t percent = smallestStep; percent <= largestStep; percent += stepWidth)
        all.push_back(percent);
    return all;
}

constexpr const char* logoForDark = "BroltLogoForDark.png";
constexpr const char* logoForLight = "BroltLogoForLight.png";

/// The pictures that take longest, as far as this editor will show them.
void prefetchPictures() {
    prefetchResourceImages({"qm_knob_70_black_128.webp"});
    switch (QM::readBackgroundMode(preferencesPrefix)) {
    case EditorBackground::lightBrushed:
        prefetchResourceImages({"UIBackground.png", logoForLight});
        break;
    case EditorBackground::darkBrushed:
        prefetchResourceImages({"UIBackgroundDark.png", logoForDark});
        break;
    default:
        break;
    }
}

QMWidgetFactory library() {
    QMWidgetFactory factory;
    addWidgetLibrary(factory);
    return factory;
}

} // namespace

QMBroltUI::QMBroltUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost)
    : QMTessalyPluginUI(plugIn, uiHost, library(), QMBrolt::editorTables(plugIn.outputCount()),
                        AppearanceOffers{.offerRingOptions = true}) {
    prefetchPictures();
    // While they are being decoded: the system's typefaces are looked through, which takes a while.
    (void)WidgetStyle::get();
    setProductCode(preferencesPrefix);
    setSizeKey(keyOfSize);
    setMagnificationSteps(steps());
    setInitialMagnification(firstMagnification);
    setTextColour(juce::Colour(0, 255, 0));
}

QMBroltUI::~QMBroltUI() {
    disconnect();
}

void QMBroltUI::widgetsBuilt() {
    for (const FourCharCode id : {fourCharCode("envl"), fourCharCode("pitl")}) {
        if (auto* const label = dynamic_cast<QMLabelWidget*>(widgetOfID(id)))
            label->setVertical(true);
    }
    for (const FourCharCode id : {fourCharCode("metr"), fourCharCode("mtr2")}) {
        if (QMWidget* const meter = widgetOfID(id))
            meter->setParameterValue(meterModeSlot, holdingMode, false);
    }
    placeFaderReadout(fourCharCode("mgan"));
    placeFaderReadout(fourCharCode("dmgn"));
    history = dynamic_cast<QMPitchHistory*>(widgetOfID(fourCharCode("wind")));
}

void QMBroltUI::placeFaderReadout(FourCharCode faderID) {
    auto* const fader = dynamic_cast<QMParameterControlWidget*>(widgetOfID(faderID));
    auto* const readout = dynamic_cast<QMParameterReadoutWidget*>(widgetOfID(readoutID(faderID)));
    if (fader == nullptr || readout == nullptr)
        return;
    const juce::Rectangle<int> area = fader->getDesignArea();
    const int width = static_cast<int>(readoutPartOfFader * area.getWidth());
    readout->setFrameArea({0, frameTop, width, frameHeight});
    placeWidget(*readout, {area.getX() + (area.getWidth() - width) / 2 + readoutShift,
                           area.getY() + readoutTop, width, area.getHeight()});
    readout->setVisible(true);
    fader->setReadout(readout);
}

void QMBroltUI::appearanceChanged() {
    auto* const logo = dynamic_cast<QMImageWidget*>(widgetOfID(fourCharCode("logo")));
    if (logo == nullptr)
        return;
    const bool isDark = getBaseColour().getBrightness() <= brightestDark;
    const juce::Image image = loadResourceImage(isDark ? logoForDark : logoForLight);
    // Without the file the logo that is part of the library stays.
    if (image.isValid())
        logo->setImage(image);
}

void QMBroltUI::tick() {
    if (history != nullptr) {
        // The rate at which the oscillators really run, so that the display tells what is heard.
        if (const QMPlugInAccess::Hold plugIn = access().hold())
            history->setSampleRate(static_cast<float>(plugIn->sampleRate()));
    }
    QMTessalyPluginUI::tick();
}
