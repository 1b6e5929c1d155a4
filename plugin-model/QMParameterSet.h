// SPDX-License-Identifier: GPL-3.0-or-later
// The framework's parameter set: answers IQMParameterSet from a table of records. A product derives
// from it, hands its static tables over and creates its own values objects.
#pragma once

#include "plugin-model/IQMParameterSet.h"

#include <set>
#include <span>
#include <unordered_map>
#include <utility>

namespace QM {

class QMParameterSet : public IQMParameterSet {
public:
    /// The record table is copied (defaults may be changed per set); group and meter tables are
    /// copied too, the texts they point to are not. The type index is 1 for mono, 2 for stereo.
    QMParameterSet(std::span<const NoxPlugInParameter> parameterTable,
                   std::span<const NoxParameterGroup> groupTable,
                   std::span<const NoxMeterDescriptor> meterTable, std::int32_t typeIndex);

    void setFirstCode(FourCharCode code) override;
    void setSecondCode(FourCharCode code) override;
    void addAcceptedPair(FourCharCode manufacturer, FourCharCode product) override;

    [[nodiscard]] FourCharCode firstCode() const override { return firstCode_; }

    [[nodiscard]] FourCharCode secondCode() const override { return secondCode_; }

    [[nodiscard]] bool acceptsPair(FourCharCode manufacturer, FourCharCode product) const override;

    /// Values with the set's defaults at 44100 Hz. A product overrides this.
    [[nodiscard]] std::unique_ptr<QMParameterValues> createParameterValues() override;

    [[nodiscard]] std::int32_t parameterCount() const override;
    void copyGroupName(std::int32_t group, char* buffer, std::size_t size) const override;
    const char* subgroupName(std::int32_t group, std::int32_t subgroup, char* buffer,
                             std::size_t size) const override;
    void copyName(std::int32_t index, char* buffer, std::size_t size) const override;
    [[nodiscard]] const char* namePointer(std::int32_t index) const override;
    void longName(std::int32_t index, char* buffer, std::size_t size) const override;
    [[nodiscard]] const char* unitPointer(std::int32_t index) const override;
    void copyUnit(std::int32_t index, char* buffer, std::size_t size) const override;
    void formatValueText(std::int32_t index, double value, char* buffer,
                         std::size_t size) const override;
    void formatValueTextWithUnit(std::int32_t index, double value, char* buffer,
                                 std::size_t size) const override;
    [[nodiscard]] std::uint32_t groupIndex(std::int32_t index) const override;
    [[nodiscard]] std::uint32_t subgroupIndex(std::int32_t index) const override;
    [[nodiscard]] const char* const* valueNamesPointer(std::int32_t index) const override;
    [[nodiscard]] NoxPlugInParameter::FormatFunction
    formatValueFunction(std::int32_t index) const override;
    [[nodiscard]] NoxPlugInParameter::FormatFunction
    formatValueWithUnitFunction(std::int32_t index) const override;

    [[nodiscard]] double normalisedToPlain(std::int32_t index, double normalised) const override;
    [[nodiscard]] double plainToNormalised(std::int32_t index, double plain) const override;
    [[nodiscard]] double maximum(std::int32_t index) const override;
    [[nodiscard]] double minimum(std::int32_t index) const override;
    [[nodiscard]] double defaultValue(std::int32_t index) const override;
    void setDefaultValue(std::int32_t index, double value) override;
    [[nodiscard]] std::int32_t taper(std::int32_t index) const override;
    [[nodiscard]] double step(std::int32_t index) const override;
    [[nodiscard]] double factor(std::int32_t index) const override;

    /// Every parameter there is; a product may except some.
    [[nodiscard]] bool isBlendable(std::int32_t index) const override {
        return index >= 0 && index < parameterCount();
    }

    [[nodiscard]] FourCharCode idOfIndex(std::int32_t index) const override;
    [[nodiscard]] std::int32_t indexOfID(FourCharCode id) const override;
    [[nodiscard]] std::int32_t hostIndexOfIndex(std::int32_t index) const override;

    [[nodiscard]] const IDListMap& idListMap() const override { return idListMap_; }

    void addIDList(FourCharCode id, std::vector<std::uint32_t> list) override;

    [[nodiscard]] std::int32_t meterCount() const override;
    void copyMeterName(std::int32_t meter, char* buffer, std::size_t size) const override;
    [[nodiscard]] FourCharCode meterID(std::int32_t meter) const override;
    [[nodiscard]] std::int32_t indexOfMeterID(FourCharCode id) const override;
    [[nodiscard]] const NoxMeterDescriptor* meterDescriptor(std::int32_t meter) const override;

    [[nodiscard]] std::uint32_t option1(std::int32_t index) const override;
    [[nodiscard]] std::uint8_t option2(std::int32_t index) const override;
    [[nodiscard]] std::uint8_t option3(std::int32_t index) const override;
    [[nodiscard]] std::uint32_t unitCode(std::int32_t index) const override;
    [[nodiscard]] std::uint64_t reservedWord(std::int32_t index) const override;
    [[nodiscard]] double curve(std::int32_t index) const override;
    [[nodiscard]] NoxPlugInParameter::ChangeHook changeHook(std::int32_t index) const override;

    [[nodiscard]] QMParameterSet* asParameterSet() override { return this; }

    [[nodiscard]] bool constructedFlag() const override { return constructed; }

    /// 1 mono, 2 stereo. [any thread]
    [[nodiscard]] std::int32_t typeIndex() const { return typeIndex_; }

private:
    [[nodiscard]] const NoxPlugInParameter* record(std::int32_t index) const;
    template <typename Value>
    Value field(std::int32_t index, Value NoxPlugInParameter::*member, Value neutral) const;
    void buildIndexOfID();

    std::vector<NoxPlugInParameter> records;
    std::vector<NoxParameterGroup> groups;
    std::vector<NoxMeterDescriptor> meters;
    std::int32_t typeIndex_;
    bool constructed = true;
    FourCharCode firstCode_ = 0;
    FourCharCode secondCode_ = 0;
    std::set<std::pair<FourCharCode, FourCharCode>> acceptedPairs;
    std::unordered_map<FourCharCode, std::int32_t> indexByID;
    IDListMap idListMap_;
};

} // namespace QM
