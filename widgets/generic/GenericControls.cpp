// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericControls.h"

#include "plugin-model/NoxPlugInParameter.h"
#include "plugin-model/NumberText.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/controls/ControlTaper.h"
#include "widgets/controls/KnobRing.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/menus/QMPopupMenuWidget.h"

#include <algorithm>
#include <cmath>

namespace {

// Numbers without names are turned, not listed, from here on; names are always listed.
constexpr int mostListedNumbers = 64;
constexpr int mostListedNames = 1000;
constexpr int mostNamesInTooltip = 4;

constexpr std::int32_t ringFromMinimum = 2;
constexpr std::int32_t ringFromMiddle = 3;

/// How many whole numbers the range has; 0 where it is no such range.
int valueCount(const GenericParameter& parameter) {
    const double range = parameter.maximum - parameter.minimum;
    if (!(range >= 0.0) || range >= mostListedNames)
        return 0;
    return static_cast<int>(std::lround(range)) + 1;
}

bool isStepped(const GenericParameter& parameter) {
    return parameter.taper == NoxTaper::stepped || !parameter.valueNames.isEmpty();
}

juce::String numberText(double number) {
    return QM::numberText(number);
}

/// The largest of 1, 2, 5, 10, 20, ... that is not above a number.
double roundedDown(double number) {
    const double decade = std::pow(10.0, std::floor(std::log10(number)));
    // A little leeway, for 0.1 and its like.
    const double digits = number / decade + 1e-9;
    if (digits >= 5.0)
        return 5.0 * decade;
    return digits >= 2.0 ? 2.0 * decade : decade;
}

void bind(QMWidget& widget, const GenericParameter& parameter) {
    widget.setParameter(0, parameter.id);
    widget.setSlotMinimum(0, parameter.minimum, false);
    widget.setSlotMaximum(0, parameter.maximum, false);
    widget.setSlotDefault(0, parameter.defaultValue, false);
    widget.setDisplayResolution(0, parameter.step > 0.0 ? parameter.step : 0.01, false);
    widget.setKeyStep(0, genericKeyStep(parameter), false);
    widget.setName(parameter.name);
    widget.setTitle(parameter.name);
    widget.setTooltip(genericTooltip(parameter));
}

std::unique_ptr<QMWidget> makeToggle(const GenericParameter& parameter) {
    // On is green; a plug-in that is out of the way is worth a warning.
    const ToggleStyleRecord style = parameter.isBypass ? ToggleStyleRecord(255, 128, 0, 255)
                                                       : ToggleStyleRecord(0, 210, 70, 255);
    auto toggle = std::make_unique<QMTextToggleButton>(&style);
    toggle->setItems(genericValueTexts(parameter), 0);
    const double low = parameter.minimum;
    const double high = parameter.maximum;
    toggle->setValueMap({[low, high](int state) { return state == 1 ? high : low; },
                         [low, high](double value) { return value > (low + high) / 2 ? 1 : 0; }});
    return toggle;
}

std::unique_ptr<QMWidget> makeMenu(const GenericParameter& parameter) {
    auto menu = std::make_unique<QMPopupMenuWidget>();
    menu->setSlotMinimum(0, parameter.minimum, false);
    menu->setItems(genericValueTexts(parameter), 0);
    return menu;
}

/// The travel of the knob is the host's. Both logarithmic tapers begin at the minimum and are of
/// the stretched kind, one by 1 and one by 1000.
void setTaper(QMKnobStripWidget& knob, std::int32_t taper) {
    const bool logarithmic = taper == NoxTaper::logarithmic;
    const bool stretched = taper == NoxTaper::stretchedLogarithmic;
    knob.setTaperMode(logarithmic || stretched ? ControlTaper::stretchedLogarithmic
                                               : ControlTaper::linear);
    knob.setTaperFactor(stretched ? 1000.0f : 1.0f);
}

std::unique_ptr<QMWidget> makeKnob(const GenericParameter& parameter) {
    auto knob = std::make_unique<QMKnobStripWidget>();
    setTaper(*knob, parameter.taper);
    const bool isSymmetrical =
        parameter.taper == NoxTaper::linear && parameter.minimum == -parameter.maximum;
    knob->setRingMode(isSymmetrical ? ringFromMiddle : ringFromMinimum);
    return knob;
}

std::unique_ptr<QMWidget> make(const GenericParameter& parameter) {
    switch (genericControlKind(parameter)) {
    case GenericControlKind::toggle:
        return makeToggle(parameter);
    case GenericControlKind::menu:
        return makeMenu(parameter);
    case GenericControlKind::knob:
        break;
    }
    return makeKnob(parameter);
}

} // namespace

GenericControlKind genericControlKind(const GenericParameter& parameter) {
    const int count = valueCount(parameter);
    if (!isStepped(parameter) || count < 2)
        return GenericControlKind::knob;
    if (count == 2)
        return GenericControlKind::toggle;
    const bool isListed = !parameter.valueNames.isEmpty() || count <= mostListedNumbers;
    return isListed ? GenericControlKind::menu : GenericControlKind::knob;
}

juce::StringArray genericValueTexts(const GenericParameter& parameter) {
    juce::StringArray texts;
    const int count = valueCount(parameter);
    const bool isSwitch = count == 2 && parameter.valueNames.isEmpty();
    if (isSwitch && parameter.minimum == 0.0)
        return {"Off", "On"};
    for (int i = 0; i < count; ++i) {
        const juce::String name = parameter.valueNames[i];
        texts.add(name.isNotEmpty() ? name : numberText(parameter.minimum + i));
    }
    return texts;
}

juce::String genericTooltip(const GenericParameter& parameter) {
    const juce::String beginning = parameter.name + ": ";
    if (genericControlKind(parameter) == GenericControlKind::knob) {
        return (beginning + numberText(parameter.minimum) + " to " + numberText(parameter.maximum) +
                " " + parameter.unit)
            .trimEnd();
    }
    const juce::StringArray texts = genericValueTexts(parameter);
    if (texts.size() > mostNamesInTooltip)
        return beginning + texts[0] + " to " + texts[texts.size() - 1];
    juce::StringArray first = texts;
    first.remove(first.size() - 1);
    return beginning + first.joinIntoString(", ") + " or " + texts[texts.size() - 1];
}

double genericKeyStep(const GenericParameter& parameter) {
    constexpr double stepsOfRange = 50.0;
    const double range = parameter.maximum - parameter.minimum;
    const double quantum = isStepped(parameter) ? 1.0 : std::max(0.0, parameter.step);
    if (!(range > 0.0) || !std::isfinite(range))
        return 1.0;
    return std::max(roundedDown(range / stepsOfRange), quantum);
}

std::unique_ptr<QMWidget> makeGenericControl(const GenericParameter& parameter) {
    std::unique_ptr<QMWidget> control = make(parameter);
    bind(*control, parameter);
    control->setParameterValue(0, parameter.value, false);
    return control;
}

std::unique_ptr<QMWidget> makeGenericReadout(const GenericParameter& parameter, QMWidget& control) {
    auto* const owner = dynamic_cast<QMParameterControlWidget*>(&control);
    if (owner == nullptr)
        return nullptr;
    auto readout = std::make_unique<QMParameterReadoutWidget>();
    bind(*readout, parameter);
    readout->setParameterValue(0, parameter.value, false);
    owner->setReadout(readout.get());
    return readout;
}
