// SPDX-License-Identifier: GPL-3.0-or-later
// Widgets that note what an editor does with them, and a factory that makes them.
#pragma once

#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/IQMItemList.h"
#include "widgets/base/IQMReadoutOwner.h"
#include "widgets/base/IQMTextColour.h"
#include "widgets/base/QMWidget.h"

#include "widgets/base/QMWidgetFactory.h"
#include <optional>

#include <map>
#include <vector>

/// A press holds it, a drag writes the pointer's x coordinate to slot 0.
class ProbeControl : public QMWidget, public IQMReadoutOwner, public IQMItemList {
public:
    explicit ProbeControl(std::uint32_t slots = 1)
        : QMWidget(slots)
        , values(slots, 0.0) {}

    std::vector<double> values;
    int shown = 0;           ///< values that came from the plug-in
    int shownUndeferred = 0; ///< the same outside the deferred mode
    int flushes = 0;
    int clicksTaken = 0;
    std::map<std::uint32_t, double> scales;
    std::map<std::uint32_t, double> resolutions;
    juce::StringArray items;
    int selectedItem = -1;

    void setParameterValue(std::uint32_t slot, double value, bool notify) override {
        values.at(slot) = value;
        if (!notify) {
            ++shown;
            shownUndeferred += isDeferringUpdates() ? 0 : 1;
        }
        QMWidget::setParameterValue(slot, value, notify);
    }

    double getSlotValue(std::uint32_t slot) const override { return values.at(slot); }

    void flushDeferredUpdates() override { ++flushes; }

    void setDisplayScale(std::uint32_t slot, double value, bool) override { scales[slot] = value; }

    void setDisplayResolution(std::uint32_t slot, double value, bool) override {
        resolutions[slot] = value;
    }

    void setItems(const juce::StringArray& texts, int item) override {
        items = texts;
        selectedItem = item;
    }

    void setReadout(QMWidget* newReadout) override { readout_ = newReadout; }

    QMWidget* readout() const override { return readout_; }

    void mouseDown(const juce::MouseEvent& event) override {
        clicksTaken += pressIsTaken(event) ? 1 : 0;
        beginTouch(0);
    }

    void mouseDrag(const juce::MouseEvent& event) override {
        setParameterValue(0, event.position.x, true);
    }

    void mouseUp(const juce::MouseEvent&) override { endTouch(0); }

    void paint(juce::Graphics&) override {}

    void forget() { shown = shownUndeferred = flushes = 0; }

private:
    QMWidget* readout_ = nullptr;
};

class ProbeReadout final : public ProbeControl, public IQMTextColour {
public:
    std::optional<juce::Colour> colour;

    void setTextColour(std::optional<juce::Colour> newColour) override { colour = newColour; }
};

class ProbeDisplay final : public QMWidget, public IQMDisplayWidget {
public:
    struct Binding {
        FourCharCode id;
        std::uint32_t kind;
        const NoxMeterRecord* record;
    };

    ProbeDisplay()
        : QMWidget(0) {}

    std::map<std::uint32_t, Binding> bindings;
    int ticks = 0;

    void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t kind,
                         const NoxMeterRecord* record) override {
        bindings[slot] = {displayID, kind, record};
    }

    void tick() override { ++ticks; }
};

/// A label, a bevel: nothing to operate, clicks go through to what is behind.
class ProbeStatic final : public QMWidget, public IQMTextColour {
public:
    ProbeStatic()
        : QMWidget(0) {}

    std::optional<juce::Colour> colour;

    void setTextColour(std::optional<juce::Colour> newColour) override { colour = newColour; }
};

/// As many states as items, at first two; a click goes to the next one. Any number is a state.
class ProbeStates final : public QMWidget, public IQMItemList {
public:
    juce::StringArray items{"off", "on"};
    int state = 0;

    void setItems(const juce::StringArray& texts, int item) override {
        items = texts;
        state = item;
    }

    void setParameterValue(std::uint32_t, double value, bool) override {
        state = (items.size() + static_cast<int>(value)) % items.size();
    }

    double getSlotValue(std::uint32_t) const override { return state; }

    void mouseDown(const juce::MouseEvent&) override { beginTouch(0); }

    void mouseUp(const juce::MouseEvent&) override {
        state = (state + 1) % items.size();
        endTouch(0);
    }
};

namespace ProbeTypes {

constexpr std::uint32_t knob = 31;
constexpr std::uint32_t fader = 21;
constexpr std::uint32_t toggle = 2;
constexpr std::uint32_t label = 6;
constexpr std::uint32_t menu = 8;
constexpr std::uint32_t flatMenu = 22;
constexpr std::uint32_t meter = 17;
constexpr std::uint32_t threeSlots = 14;
constexpr std::uint32_t states = 28;
constexpr std::uint32_t nothing = 24; ///< no class has this code

inline QMWidgetFactory factory() {
    using Items = QMWidgetFactory::Items;
    using Readout = QMWidgetFactory::Readout;
    const auto control = [](const QMWidgetDescriptor&) { return std::make_unique<ProbeControl>(); };
    QMWidgetFactory made;
    made.add(knob, {control, Items::none, Readout::above});
    made.add(fader, {control, Items::none, Readout::aboveFader});
    made.add(toggle, {control});
    made.add(menu, {control, Items::named});
    made.add(flatMenu, {control, Items::fromZero});
    made.add(threeSlots,
             {[](const QMWidgetDescriptor&) { return std::make_unique<ProbeControl>(3); }});
    made.add(label, {[](const QMWidgetDescriptor&) { return std::make_unique<ProbeStatic>(); }});
    made.add(meter, {[](const QMWidgetDescriptor&) { return std::make_unique<ProbeDisplay>(); }});
    made.add(states, {[](const QMWidgetDescriptor&) { return std::make_unique<ProbeStates>(); }});
    made.setReadoutCreator(
        [](const QMWidgetDescriptor&) { return std::make_unique<ProbeReadout>(); });
    return made;
}

} // namespace ProbeTypes
