// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/QMParameterQueries.h"

#include "plugin-model/QMParameterSet.h"

namespace QM {

const IQMParameterSet& QMParameterQueries::askedSet() const {
    // Out of range for every index, so that its answers are the neutral ones.
    static const QMParameterSet withoutParameters({}, {}, {}, 0);
    const IQMParameterSet* set = queriedSet();
    return set != nullptr ? *set : withoutParameters;
}

std::int32_t QMParameterQueries::parameterCount() const {
    return askedSet().parameterCount();
}

void QMParameterQueries::copyGroupName(std::int32_t group, char* buffer, std::size_t size) const {
    askedSet().copyGroupName(group, buffer, size);
}

const char* QMParameterQueries::subgroupName(std::int32_t group, std::int32_t subgroup,
                                             char* buffer, std::size_t size) const {
    return askedSet().subgroupName(group, subgroup, buffer, size);
}

void QMParameterQueries::copyName(std::int32_t index, char* buffer, std::size_t size) const {
    askedSet().copyName(index, buffer, size);
}

const char* QMParameterQueries::namePointer(std::int32_t index) const {
    return askedSet().namePointer(index);
}

void QMParameterQueries::longName(std::int32_t index, char* buffer, std::size_t size) const {
    askedSet().longName(index, buffer, size);
}

const char* QMParameterQueries::unitPointer(std::int32_t index) const {
    return askedSet().unitPointer(index);
}

void QMParameterQueries::copyUnit(std::int32_t index, char* buffer, std::size_t size) const {
    askedSet().copyUnit(index, buffer, size);
}

void QMParameterQueries::formatValueText(std::int32_t index, double value, char* buffer,
                                         std::size_t size) const {
    askedSet().formatValueText(index, value, buffer, size);
}

void QMParameterQueries::formatValueTextWithUnit(std::int32_t index, double value, char* buffer,
                                                 std::size_t size) const {
    askedSet().formatValueTextWithUnit(index, value, buffer, size);
}

std::uint32_t QMParameterQueries::groupIndex(std::int32_t index) const {
    return askedSet().groupIndex(index);
}

std::uint32_t QMParameterQueries::subgroupIndex(std::int32_t index) const {
    return askedSet().subgroupIndex(index);
}

const char* const* QMParameterQueries::valueNamesPointer(std::int32_t index) const {
    return askedSet().valueNamesPointer(index);
}

NoxPlugInParameter::FormatFunction
QMParameterQueries::formatValueFunction(std::int32_t index) const {
    return askedSet().formatValueFunction(index);
}

NoxPlugInParameter::FormatFunction
QMParameterQueries::formatValueWithUnitFunction(std::int32_t index) const {
    return askedSet().formatValueWithUnitFunction(index);
}

double QMParameterQueries::normalisedToPlain(std::int32_t index, double normalised) const {
    return askedSet().normalisedToPlain(index, normalised);
}

double QMParameterQueries::plainToNormalised(std::int32_t index, double plain) const {
    return askedSet().plainToNormalised(index, plain);
}

double QMParameterQueries::maximum(std::int32_t index) const {
    return askedSet().maximum(index);
}

double QMParameterQueries::minimum(std::int32_t index) const {
    return askedSet().minimum(index);
}

double QMParameterQueries::defaultValue(std::int32_t index) const {
    return askedSet().defaultValue(index);
}

std::int32_t QMParameterQueries::taper(std::int32_t index) const {
    return askedSet().taper(index);
}

double QMParameterQueries::step(std::int32_t index) const {
    return askedSet().step(index);
}

double QMParameterQueries::factor(std::int32_t index) const {
    return askedSet().factor(index);
}

FourCharCode QMParameterQueries::idOfIndex(std::int32_t index) const {
    return askedSet().idOfIndex(index);
}

std::int32_t QMParameterQueries::indexOfID(FourCharCode id) const {
    return askedSet().indexOfID(id);
}

const IQMParameterSet::IDListMap& QMParameterQueries::idListMap() const {
    return askedSet().idListMap();
}

bool QMParameterQueries::matchesFirstCode(FourCharCode code) const {
    return queriedSet() != nullptr && queriedSet()->firstCode() == code;
}

bool QMParameterQueries::matchesSecondCode(FourCharCode code) const {
    return queriedSet() != nullptr && queriedSet()->secondCode() == code;
}

std::uint8_t QMParameterQueries::option2(std::int32_t index) const {
    return askedSet().option2(index);
}

std::uint8_t QMParameterQueries::option3(std::int32_t index) const {
    return askedSet().option3(index);
}

std::uint32_t QMParameterQueries::unitCode(std::int32_t index) const {
    return askedSet().unitCode(index);
}

std::uint64_t QMParameterQueries::reservedWord(std::int32_t index) const {
    return askedSet().reservedWord(index);
}

double QMParameterQueries::curve(std::int32_t index) const {
    return askedSet().curve(index);
}

bool QMParameterQueries::constructedFlag() const {
    return queriedSet() != nullptr && queriedSet()->constructedFlag();
}

} // namespace QM
