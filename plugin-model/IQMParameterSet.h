// SPDX-License-Identifier: GPL-3.0-or-later
// What a plug-in type's parameters are: names, ranges, defaults, tapers, texts, identifiers,
// groups and meters. Everybody who only asks about parameters (values objects, host adapters, the
// editor) sees a set through this interface.
//
// Parameters are addressed by index (position in the table, from 0) or by four-character
// identifier. An index out of range gets a neutral answer: 0, 0.0, the empty text, -1. Plain values
// are in display units. A set is read-only once its type is set up (setDefaultValue, the codes and
// addIDList belong to the set-up), so every query may be asked on [any thread]; the set-up
// operations are for the [message thread].
#pragma once

#include "plugin-model/NoxPlugInParameter.h"

#include <map>
#include <memory>
#include <vector>

namespace QM {

class QMParameterSet;
class QMParameterValues;

class IQMParameterSet {
public:
    /// Identifier to a list of identifiers; used by host adapters.
    using IDListMap = std::map<FourCharCode, std::vector<std::uint32_t>>;

    virtual ~IQMParameterSet() = default;

    // Codes that settings records are recognised by.

    /// Stores the first code of the set's own pair and accepts the pair.
    virtual void setFirstCode(FourCharCode code) = 0;
    /// Refreshes the set's derived tables, stores the second code and accepts the pair.
    virtual void setSecondCode(FourCharCode code) = 0;
    /// Accepts a pair; ignored when either code is 0, and an accepted pair is not added twice.
    virtual void addAcceptedPair(FourCharCode manufacturer, FourCharCode product) = 0;
    [[nodiscard]] virtual FourCharCode firstCode() const = 0;
    [[nodiscard]] virtual FourCharCode secondCode() const = 0;
    [[nodiscard]] virtual bool acceptsPair(FourCharCode manufacturer,
                                           FourCharCode product) const = 0;

    // The values object of a new instance.

    [[nodiscard]] virtual std::unique_ptr<QMParameterValues> createParameterValues() = 0;

    // Names and texts. Copies are cut to the buffer's size and terminated.

    [[nodiscard]] virtual std::int32_t parameterCount() const = 0;
    virtual void copyGroupName(std::int32_t group, char* buffer, std::size_t size) const = 0;
    /// The subgroup's name, also copied when there is a buffer; empty out of range.
    virtual const char* subgroupName(std::int32_t group, std::int32_t subgroup, char* buffer,
                                     std::size_t size) const = 0;
    virtual void copyName(std::int32_t index, char* buffer, std::size_t size) const = 0;
    [[nodiscard]] virtual const char* namePointer(std::int32_t index) const = 0;
    /// Name with the group's and subgroup's names in front where the group has a name. A failed
    /// allocation leaves the buffer as it is.
    virtual void longName(std::int32_t index, char* buffer, std::size_t size) const = 0;
    [[nodiscard]] virtual const char* unitPointer(std::int32_t index) const = 0;
    virtual void copyUnit(std::int32_t index, char* buffer, std::size_t size) const = 0;
    /// Text of a plain value: the record's own function, else its value name, else the number. A
    /// value without a name leaves the buffer as it is.
    virtual void formatValueText(std::int32_t index, double value, char* buffer,
                                 std::size_t size) const = 0;
    /// The record's own function with the unit; without one the buffer stays as it is.
    virtual void formatValueTextWithUnit(std::int32_t index, double value, char* buffer,
                                         std::size_t size) const = 0;
    [[nodiscard]] virtual std::uint32_t groupIndex(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::uint32_t subgroupIndex(std::int32_t index) const = 0;
    [[nodiscard]] virtual const char* const* valueNamesPointer(std::int32_t index) const = 0;
    [[nodiscard]] virtual NoxPlugInParameter::FormatFunction
    formatValueFunction(std::int32_t index) const = 0;
    [[nodiscard]] virtual NoxPlugInParameter::FormatFunction
    formatValueWithUnitFunction(std::int32_t index) const = 0;

    // Values.

    /// See QM::normalisedToPlain.
    [[nodiscard]] virtual double normalisedToPlain(std::int32_t index, double normalised) const = 0;
    /// See QM::plainToNormalised.
    [[nodiscard]] virtual double plainToNormalised(std::int32_t index, double plain) const = 0;
    [[nodiscard]] virtual double maximum(std::int32_t index) const = 0;
    [[nodiscard]] virtual double minimum(std::int32_t index) const = 0;
    [[nodiscard]] virtual double defaultValue(std::int32_t index) const = 0;
    virtual void setDefaultValue(std::int32_t index, double value) = 0;
    [[nodiscard]] virtual std::int32_t taper(std::int32_t index) const = 0;
    [[nodiscard]] virtual double step(std::int32_t index) const = 0;
    [[nodiscard]] virtual double factor(std::int32_t index) const = 0;
    /// Whether blending two snapshots mixes the parameter; otherwise it keeps its current value.
    [[nodiscard]] virtual bool isBlendable(std::int32_t index) const = 0;

    // Identifiers.

    /// All bits set for an index out of range.
    [[nodiscard]] virtual FourCharCode idOfIndex(std::int32_t index) const = 0;
    /// -1 for an unknown identifier.
    [[nodiscard]] virtual std::int32_t indexOfID(FourCharCode id) const = 0;
    /// The index under which a host addresses the parameter: the index itself.
    [[nodiscard]] virtual std::int32_t hostIndexOfIndex(std::int32_t index) const = 0;
    [[nodiscard]] virtual const IDListMap& idListMap() const = 0;
    /// Stores or replaces the list under an identifier.
    virtual void addIDList(FourCharCode id, std::vector<std::uint32_t> list) = 0;

    // Meters.

    [[nodiscard]] virtual std::int32_t meterCount() const = 0;
    virtual void copyMeterName(std::int32_t meter, char* buffer, std::size_t size) const = 0;
    /// 0 out of range.
    [[nodiscard]] virtual FourCharCode meterID(std::int32_t meter) const = 0;
    /// -1 for an unknown identifier.
    [[nodiscard]] virtual std::int32_t indexOfMeterID(FourCharCode id) const = 0;
    /// Null out of range.
    [[nodiscard]] virtual const NoxMeterDescriptor* meterDescriptor(std::int32_t meter) const = 0;

    // What the records carry for host adapters.

    [[nodiscard]] virtual std::uint32_t option1(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::uint8_t option2(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::uint8_t option3(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::uint32_t unitCode(std::int32_t index) const = 0;
    [[nodiscard]] virtual std::uint64_t reservedWord(std::int32_t index) const = 0;
    [[nodiscard]] virtual double curve(std::int32_t index) const = 0;
    [[nodiscard]] virtual NoxPlugInParameter::ChangeHook changeHook(std::int32_t index) const = 0;

    [[nodiscard]] virtual QMParameterSet* asParameterSet() = 0;
    /// True once the set is constructed.
    [[nodiscard]] virtual bool constructedFlag() const = 0;
};

} // namespace QM
