// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ProductReport.h"

#include "brolt/model/QMBrolt_ProductCodes.h"
#include "tools/brolt-host/TextTable.h"

#include <array>

namespace {

std::string quoted(FourCharCode code) {
    return "'" + fourCharText(code) + "'";
}

std::string channelsText(const INoxPlugInType& type) {
    return std::to_string(type.inputCount()) + " in, " + std::to_string(type.outputCount()) +
           " out";
}

std::string metersText(const INoxPlugInType& type) {
    std::string list;
    const QM::IQMParameterSet& set = *type.parameterSet();
    for (std::int32_t i = 0; i < set.meterCount(); ++i) {
        std::array<char, 64> name{};
        set.copyMeterName(i, name.data(), name.size());
        list += (i == 0 ? "" : ", ") + std::string(name.data()) + " " + quoted(set.meterID(i));
    }
    return list;
}

std::string typeReport(const INoxPlugInType& type) {
    return alignedTable({
        {"Type", quoted(type.typeCode())},
        {"  Full name", type.fullName()},
        {"  Channels", channelsText(type)},
        {"  Category", type.categoryText() + ", bits " + std::to_string(type.categoryBits())},
        {"  VST3 class ID", type.vst3ClassID()},
        {"  Parameters", std::to_string(type.parameterCount())},
        {"  Meters", metersText(type)},
    });
}

} // namespace

std::string productReport(ProductModel& product) {
    const INoxPlugInType& mono = product.typeForChannels(1);
    std::string text = alignedTable({
        {"Product", mono.displayNameWithMaker()},
        {"Version", QMBrolt::versionText},
        {"Maker", mono.manufacturerName() + " " + quoted(mono.manufacturerCode())},
        {"Product code", quoted(mono.productCode())},
    });
    for (std::int32_t i = 0; i < product.group().typeCount(); ++i)
        text += "\n" + typeReport(*product.group().typeOfIndex(i));
    return text;
}
