// SPDX-License-Identifier: GPL-3.0-or-later
// A level meter bound to one meter record of the plug-in, refreshed by the editor's tick. Value
// slot 0 is the level of a marker beside the bar in dB, slot 1 the mode, which says how long peaks
// are held. [message thread]
#pragma once

#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"
#include "widgets/meters/MeterClock.h"
#include "widgets/meters/MeterData.h"
#include "widgets/meters/MeterRenderer.h"

#include <cstdint>
#include <memory>

class QMMeterWidget : public QMWidget, public juce::Timer, public IQMDisplayWidget {
public:
    static constexpr std::uint32_t markerSlot = 0;
    static constexpr std::uint32_t modeSlot = 1;

    /// sharedData, when given, is drawn and kept up to date instead of data of the widget's own;
    /// not owned.
    explicit QMMeterWidget(MeterData* sharedData = nullptr, MeterClock timeSource = {});
    ~QMMeterWidget() override;

    /// There is one display slot. Unbound, the meter shows silence.
    void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t kind,
                         const NoxMeterRecord* record) override;
    void tick() override;

    /// For a meter that no editor ticks.
    void setRefreshesItself(bool flag);

    /// Bound to a meter of a parameter, gain reduction say, and not of a signal: full scale is then
    /// nothing that could be overloaded.
    [[nodiscard]] bool isParameterMeter() const { return parameterMeter; }

    void setParameterMeter(bool flag) { parameterMeter = flag; }

    void setCountsOverloads(bool flag) { countsOverloads = flag; }

    void setParameterValue(std::uint32_t slot, double value, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;

    void flushDeferredUpdates() override { repaint(); }

    void setShowMarker(bool flag);
    /// Drawn centred on the marker's level; a null image for the meter's own.
    void setMarkerImage(const juce::Image& image);

    /// Squared: 10 ^ (dB / 10).
    [[nodiscard]] double getMarkerLevel() const { return markerLevel; }

    /// From the meter's loud end, where it stands upright; else from its silent one.
    [[nodiscard]] std::int32_t getMarkerPosition();

    [[nodiscard]] const MeterData& getMeterData() const { return *meterData; }

    /// Made when it is first asked for.
    [[nodiscard]] MeterRenderer& getRenderer();

    /// The peak: "-12.3 dB".
    [[nodiscard]] juce::String getDisplayText() const override;

    void setMagnification(float factor) override;
    void resized() override;
    void paint(juce::Graphics& g) override;
    void timerCallback() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void copyRecord();
    void setMode(double value);
    void repaintUnlessDeferred();
    void placeRenderer();
    void drawMarker(juce::Graphics& g);

    MeterClock clock;
    MeterData ownData;
    MeterData* meterData;
    const NoxMeterRecord* boundRecord = nullptr;
    std::unique_ptr<MeterRenderer> renderer;
    bool parameterMeter = false;
    bool countsOverloads = true;
    double markerLevelDb = 0.0;
    double markerLevel = 1.0;
    bool showMarker = false;
    juce::Image markerImage;
    std::int32_t mode = 0;
};
