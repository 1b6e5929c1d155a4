// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/QMParameterSet.h"

#include "plugin-model/NumberText.h"
#include "plugin-model/ParameterTaper.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/TextBuffer.h"

#include <cmath>
#include <new>
#include <string>

namespace QM {
namespace {

constexpr double defaultSampleRate = 44100.0;
constexpr FourCharCode unknownID = 0xFFFFFFFFu;

template <typename Element>
const Element* elementAt(const std::vector<Element>& elements, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= elements.size())
        return nullptr;
    return &elements[static_cast<std::size_t>(index)];
}

/// A number without functions or names to show it: thousands as "1.5k". The comparisons are on the
/// signed value, so every negative number gets three digits.
std::string plainNumberText(double value) {
    if (value >= 1000.0)
        return numberText(value / 1000.0, 4) + "k";
    return numberText(value, value >= 10.0 ? 4 : 3);
}

} // namespace

QMParameterSet::QMParameterSet(std::span<const NoxPlugInParameter> parameterTable,
                               std::span<const NoxParameterGroup> groupTable,
                               std::span<const NoxMeterDescriptor> meterTable,
                               std::int32_t typeIndex)
    : records(parameterTable.begin(), parameterTable.end())
    , groups(groupTable.begin(), groupTable.end())
    , meters(meterTable.begin(), meterTable.end())
    , typeIndex_(typeIndex) {
    buildIndexOfID();
}

const NoxPlugInParameter* QMParameterSet::record(std::int32_t index) const {
    return elementAt(records, index);
}

template <typename Value>
Value QMParameterSet::field(std::int32_t index, Value NoxPlugInParameter::*member,
                            Value neutral) const {
    const NoxPlugInParameter* parameter = record(index);
    return parameter != nullptr ? parameter->*member : neutral;
}

void QMParameterSet::buildIndexOfID() {
    indexByID.clear();
    for (std::size_t i = 0; i < records.size(); ++i)
        indexByID[records[i].id] = static_cast<std::int32_t>(i); // a later duplicate wins
}

void QMParameterSet::setFirstCode(FourCharCode code) {
    firstCode_ = code;
    addAcceptedPair(firstCode_, secondCode_);
}

void QMParameterSet::setSecondCode(FourCharCode code) {
    buildIndexOfID();
    secondCode_ = code;
    addAcceptedPair(firstCode_, secondCode_);
}

void QMParameterSet::addAcceptedPair(FourCharCode manufacturer, FourCharCode product) {
    if (manufacturer != 0 && product != 0)
        acceptedPairs.emplace(manufacturer, product);
}

bool QMParameterSet::acceptsPair(FourCharCode manufacturer, FourCharCode product) const {
    return acceptedPairs.contains({manufacturer, product});
}

std::unique_ptr<QMParameterValues> QMParameterSet::createParameterValues() {
    return std::make_unique<QMParameterValues>(*this, defaultSampleRate);
}

std::int32_t QMParameterSet::parameterCount() const {
    return static_cast<std::int32_t>(records.size());
}

void QMParameterSet::copyGroupName(std::int32_t group, char* buffer, std::size_t size) const {
    const NoxParameterGroup* entry = elementAt(groups, group);
    copyText(buffer, size, entry != nullptr ? entry->name : "");
}

const char* QMParameterSet::subgroupName(std::int32_t group, std::int32_t subgroup, char* buffer,
                                         std::size_t size) const {
    const NoxParameterGroup* entry = elementAt(groups, group);
    const bool known = entry != nullptr && subgroup >= 0 &&
                       static_cast<std::uint32_t>(subgroup) < entry->subgroupCount;
    const char* name = known ? entry->subgroupNames[subgroup] : "";
    copyText(buffer, size, name);
    return name;
}

void QMParameterSet::copyName(std::int32_t index, char* buffer, std::size_t size) const {
    copyText(buffer, size, namePointer(index));
}

const char* QMParameterSet::namePointer(std::int32_t index) const {
    return field<const char*>(index, &NoxPlugInParameter::name, "");
}

void QMParameterSet::longName(std::int32_t index, char* buffer, std::size_t size) const {
    const NoxPlugInParameter* parameter = record(index);
    if (parameter == nullptr) {
        copyText(buffer, size, "");
        return;
    }
    const auto group = static_cast<std::int32_t>(parameter->groupIndex);
    const NoxParameterGroup* entry = elementAt(groups, group);
    const std::string groupName = entry != nullptr ? entry->name : "";
    const std::string subgroup =
        subgroupName(group, static_cast<std::int32_t>(parameter->subgroupIndex), nullptr, 0);
    try {
        std::string name;
        if (!groupName.empty())
            name = groupName + " ";
        if (!groupName.empty() && !subgroup.empty())
            name += subgroup + " ";
        copyText(buffer, size, (name + parameter->name).c_str());
    } catch (const std::bad_alloc&) {
        return; // the buffer stays as it is
    }
}

const char* QMParameterSet::unitPointer(std::int32_t index) const {
    return field<const char*>(index, &NoxPlugInParameter::unit, "");
}

void QMParameterSet::copyUnit(std::int32_t index, char* buffer, std::size_t size) const {
    copyText(buffer, size, unitPointer(index));
}

void QMParameterSet::formatValueText(std::int32_t index, double value, char* buffer,
                                     std::size_t size) const {
    const NoxPlugInParameter* parameter = record(index);
    if (parameter == nullptr) {
        copyText(buffer, size, "");
        return;
    }
    if (parameter->formatValue != nullptr) {
        parameter->formatValue(*parameter, value, buffer, size);
        return;
    }
    if (parameter->valueNames == nullptr) {
        copyText(buffer, size, plainNumberText(value).c_str());
        return;
    }
    // The value is cut to a whole number before the minimum is taken off. The comparison with the
    // count comes first: a value beyond int, or not a number, has no name.
    const double position = std::trunc(value) - parameter->minimum;
    const double count = std::trunc(parameter->maximum - parameter->minimum + 1.0);
    if (std::trunc(position) >= 0.0 && std::trunc(position) < count)
        copyText(buffer, size, parameter->valueNames[static_cast<std::size_t>(position)]);
}

void QMParameterSet::formatValueTextWithUnit(std::int32_t index, double value, char* buffer,
                                             std::size_t size) const {
    const NoxPlugInParameter* parameter = record(index);
    if (parameter == nullptr)
        copyText(buffer, size, "");
    else if (parameter->formatValueWithUnit != nullptr)
        parameter->formatValueWithUnit(*parameter, value, buffer, size);
}

std::uint32_t QMParameterSet::groupIndex(std::int32_t index) const {
    return field<std::uint32_t>(index, &NoxPlugInParameter::groupIndex, 0);
}

std::uint32_t QMParameterSet::subgroupIndex(std::int32_t index) const {
    return field<std::uint32_t>(index, &NoxPlugInParameter::subgroupIndex, 0);
}

const char* const* QMParameterSet::valueNamesPointer(std::int32_t index) const {
    return field<const char* const*>(index, &NoxPlugInParameter::valueNames, nullptr);
}

NoxPlugInParameter::FormatFunction QMParameterSet::formatValueFunction(std::int32_t index) const {
    return field<NoxPlugInParameter::FormatFunction>(index, &NoxPlugInParameter::formatValue,
                                                     nullptr);
}

NoxPlugInParameter::FormatFunction
QMParameterSet::formatValueWithUnitFunction(std::int32_t index) const {
    return field<NoxPlugInParameter::FormatFunction>(
        index, &NoxPlugInParameter::formatValueWithUnit, nullptr);
}

double QMParameterSet::normalisedToPlain(std::int32_t index, double normalised) const {
    const NoxPlugInParameter* parameter = record(index);
    return parameter != nullptr ? QM::normalisedToPlain(*parameter, normalised) : 0.0;
}

double QMParameterSet::plainToNormalised(std::int32_t index, double plain) const {
    const NoxPlugInParameter* parameter = record(index);
    return parameter != nullptr ? QM::plainToNormalised(*parameter, plain) : 0.0;
}

double QMParameterSet::maximum(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::maximum, 0.0);
}

double QMParameterSet::minimum(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::minimum, 0.0);
}

double QMParameterSet::defaultValue(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::defaultValue, 0.0);
}

void QMParameterSet::setDefaultValue(std::int32_t index, double value) {
    if (record(index) != nullptr)
        records[static_cast<std::size_t>(index)].defaultValue = value;
}

std::int32_t QMParameterSet::taper(std::int32_t index) const {
    return field<std::int32_t>(index, &NoxPlugInParameter::taper, 0);
}

double QMParameterSet::step(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::step, 0.0);
}

double QMParameterSet::factor(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::factor, 0.0);
}

FourCharCode QMParameterSet::idOfIndex(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::id, unknownID);
}

std::int32_t QMParameterSet::indexOfID(FourCharCode id) const {
    const auto found = indexByID.find(id);
    return found != indexByID.end() ? found->second : -1;
}

std::int32_t QMParameterSet::hostIndexOfIndex(std::int32_t index) const {
    return index;
}

void QMParameterSet::addIDList(FourCharCode id, std::vector<std::uint32_t> list) {
    idListMap_[id] = std::move(list);
}

std::int32_t QMParameterSet::meterCount() const {
    return static_cast<std::int32_t>(meters.size());
}

void QMParameterSet::copyMeterName(std::int32_t meter, char* buffer, std::size_t size) const {
    const NoxMeterDescriptor* descriptor = meterDescriptor(meter);
    copyText(buffer, size, descriptor != nullptr ? descriptor->name : "");
}

FourCharCode QMParameterSet::meterID(std::int32_t meter) const {
    const NoxMeterDescriptor* descriptor = meterDescriptor(meter);
    return descriptor != nullptr ? descriptor->id : 0;
}

std::int32_t QMParameterSet::indexOfMeterID(FourCharCode id) const {
    for (std::size_t i = 0; i < meters.size(); ++i) {
        if (meters[i].id == id)
            return static_cast<std::int32_t>(i);
    }
    return -1;
}

const NoxMeterDescriptor* QMParameterSet::meterDescriptor(std::int32_t meter) const {
    return elementAt(meters, meter);
}

std::uint32_t QMParameterSet::option1(std::int32_t index) const {
    return field<std::uint32_t>(index, &NoxPlugInParameter::option1, 0);
}

std::uint8_t QMParameterSet::option2(std::int32_t index) const {
    return field<std::uint8_t>(index, &NoxPlugInParameter::option2, 0);
}

std::uint8_t QMParameterSet::option3(std::int32_t index) const {
    return field<std::uint8_t>(index, &NoxPlugInParameter::option3, 0);
}

std::uint32_t QMParameterSet::unitCode(std::int32_t index) const {
    return field<std::uint32_t>(index, &NoxPlugInParameter::unitCode, 0);
}

std::uint64_t QMParameterSet::reservedWord(std::int32_t index) const {
    return field<std::uint64_t>(index, &NoxPlugInParameter::reservedWord, 0);
}

double QMParameterSet::curve(std::int32_t index) const {
    return field(index, &NoxPlugInParameter::curve, 0.0);
}

NoxPlugInParameter::ChangeHook QMParameterSet::changeHook(std::int32_t index) const {
    return field<NoxPlugInParameter::ChangeHook>(index, &NoxPlugInParameter::changeHook, nullptr);
}

} // namespace QM
