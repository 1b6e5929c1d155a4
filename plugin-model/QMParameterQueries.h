// SPDX-License-Identifier: GPL-3.0-or-later
// Questions about parameters, asked of somebody who has a parameter set: a type, an instance, its
// values. They are the set's own questions under the set's own names (see IQMParameterSet), so that
// whoever holds an instance need not fetch the set first. Without a set every answer is the neutral
// one that the set gives for an index out of range. [any thread]
#pragma once

#include "plugin-model/IQMParameterSet.h"

namespace QM {

class QMParameterQueries {
public:
    virtual ~QMParameterQueries() = default;

    // Names and texts.
    [[nodiscard]] std::int32_t parameterCount() const;
    void copyGroupName(std::int32_t group, char* buffer, std::size_t size) const;
    const char* subgroupName(std::int32_t group, std::int32_t subgroup, char* buffer,
                             std::size_t size) const;
    void copyName(std::int32_t index, char* buffer, std::size_t size) const;
    [[nodiscard]] const char* namePointer(std::int32_t index) const;
    void longName(std::int32_t index, char* buffer, std::size_t size) const;
    [[nodiscard]] const char* unitPointer(std::int32_t index) const;
    void copyUnit(std::int32_t index, char* buffer, std::size_t size) const;
    void formatValueText(std::int32_t index, double value, char* buffer, std::size_t size) const;
    void formatValueTextWithUnit(std::int32_t index, double value, char* buffer,
                                 std::size_t size) const;
    [[nodiscard]] std::uint32_t groupIndex(std::int32_t index) const;
    [[nodiscard]] std::uint32_t subgroupIndex(std::int32_t index) const;
    [[nodiscard]] const char* const* valueNamesPointer(std::int32_t index) const;
    [[nodiscard]] NoxPlugInParameter::FormatFunction formatValueFunction(std::int32_t index) const;
    [[nodiscard]] NoxPlugInParameter::FormatFunction
    formatValueWithUnitFunction(std::int32_t index) const;

    // Values.
    [[nodiscard]] double normalisedToPlain(std::int32_t index, double normalised) const;
    [[nodiscard]] double plainToNormalised(std::int32_t index, double plain) const;
    [[nodiscard]] double maximum(std::int32_t index) const;
    [[nodiscard]] double minimum(std::int32_t index) const;
    [[nodiscard]] double defaultValue(std::int32_t index) const;
    [[nodiscard]] std::int32_t taper(std::int32_t index) const;
    [[nodiscard]] double step(std::int32_t index) const;
    [[nodiscard]] double factor(std::int32_t index) const;

    // Identifiers.
    [[nodiscard]] FourCharCode idOfIndex(std::int32_t index) const;
    [[nodiscard]] std::int32_t indexOfID(FourCharCode id) const;
    /// Empty without a set.
    [[nodiscard]] const IQMParameterSet::IDListMap& idListMap() const;
    /// Whether a code is the first, or the second, of the set's own pair; never without a set.
    [[nodiscard]] bool matchesFirstCode(FourCharCode code) const;
    [[nodiscard]] bool matchesSecondCode(FourCharCode code) const;

    // What the records carry for host adapters.
    [[nodiscard]] std::uint8_t option2(std::int32_t index) const;
    [[nodiscard]] std::uint8_t option3(std::int32_t index) const;
    [[nodiscard]] std::uint32_t unitCode(std::int32_t index) const;
    [[nodiscard]] std::uint64_t reservedWord(std::int32_t index) const;
    [[nodiscard]] double curve(std::int32_t index) const;
    /// True once the set is constructed.
    [[nodiscard]] bool constructedFlag() const;

private:
    /// Null for a type without a set.
    [[nodiscard]] virtual const IQMParameterSet* queriedSet() const = 0;
    /// The set, or one without parameters.
    [[nodiscard]] const IQMParameterSet& askedSet() const;
};

} // namespace QM
