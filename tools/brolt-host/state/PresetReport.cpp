// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/PresetReport.h"

#include "plugin-model/NumberText.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ParameterReport.h"
#include "tools/brolt-host/TextTable.h"

#include <array>
#include <cstdio>

namespace {

std::string hexadecimal(std::uint64_t number, int digits) {
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "0x%0*llX", digits,
                  static_cast<unsigned long long>(number));
    return text.data();
}

/// Four characters in quotes, or the number where they cannot be printed.
std::string codeText(FourCharCode code) {
    const std::string characters = fourCharText(code);
    for (const char c : characters) {
        if (c < ' ' || c > '~')
            return hexadecimal(code, 8);
    }
    return "'" + characters + "'";
}

TextRow valueRow(FourCharCode id, double value, const QM::IQMParameterSet& parameters) {
    const std::int32_t index = parameters.indexOfID(id);
    if (index < 0)
        return {codeText(id), "(unknown)", QM::numberText(value), ""};
    return {codeText(id), parameters.namePointer(index), QM::numberText(value),
            displayText(parameters, index, value)};
}

} // namespace

std::string presetReport(const StateFile& file, const QM::IQMParameterSet& parameters) {
    const QMGenericPreset& record = file.record;
    std::string report =
        alignedTable({{"Form", stateFormName(file.form)},
                      {"Name", record.name.empty() ? "(none)" : printableText(record.name)},
                      {"Maker", codeText(record.manufacturerCode)},
                      {"Product", codeText(record.productCode)},
                      {"Variant", codeText(record.variantCode)},
                      {"Values tag", std::to_string(record.valuesTag)},
                      {"Identifier", hexadecimal(record.uniqueId, 16)}});
    std::vector<TextRow> values{{"ID", "Parameter", "Value", "Displayed"}};
    for (const auto& [id, value] : record.values)
        values.push_back(valueRow(id, value, parameters));
    report += "\n" + alignedTable(values);
    constexpr int indentation = 2;
    report +=
        "\nExtension\n" +
        record.extension.dump(indentation, ' ', false, nlohmann::json::error_handler_t::replace) +
        "\n";
    return report;
}
