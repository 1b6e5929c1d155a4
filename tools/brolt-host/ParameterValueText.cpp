// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ParameterValueText.h"

#include "plugin-model/NumberText.h"
#include "tools/brolt-host/HostError.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr std::size_t idLength = 4;

std::string knownIDs(const QM::IQMParameterSet& parameters) {
    std::string list;
    for (std::int32_t i = 0; i < parameters.parameterCount(); ++i)
        list += (i == 0 ? "" : ", ") + fourCharText(parameters.idOfIndex(i));
    return list;
}

std::int32_t indexOfIDText(const QM::IQMParameterSet& parameters, std::string_view text) {
    std::int32_t index = -1;
    if (text.size() == idLength) {
        FourCharCode code = 0;
        for (const char c : text)
            code = (code << 8U) | static_cast<unsigned char>(c);
        index = parameters.indexOfID(code);
    }
    if (index < 0) {
        throw HostError("unknown parameter '" + std::string(text) +
                        "'; known are: " + knownIDs(parameters));
    }
    return index;
}

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameButForCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

std::optional<double> valueOfName(const QM::IQMParameterSet& parameters, std::int32_t index,
                                  std::string_view text) {
    const char* const* const names = parameters.valueNamesPointer(index);
    const double minimum = parameters.minimum(index);
    const double count = parameters.maximum(index) - minimum + 1.0;
    for (int i = 0; names != nullptr && i < count; ++i) {
        if (sameButForCase(names[i], text))
            return minimum + i;
    }
    return std::nullopt;
}

std::string withUnit(const QM::IQMParameterSet& parameters, std::int32_t index, double value) {
    const std::string unit = parameters.unitPointer(index);
    return QM::numberText(value) + (unit.empty() ? "" : " " + unit);
}

} // namespace

std::optional<double> parseNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

ParameterSetting parseSetting(const QM::IQMParameterSet& parameters, std::string_view id,
                              std::string_view value) {
    const std::int32_t index = indexOfIDText(parameters, id);
    std::optional<double> number = parseNumber(value);
    if (!number)
        number = valueOfName(parameters, index, value);
    if (!number) {
        throw HostError("'" + std::string(value) + "' is not a value of " + std::string(id) + " (" +
                        parameters.namePointer(index) + ")");
    }

    const double minimum = parameters.minimum(index);
    const double maximum = parameters.maximum(index);
    ParameterSetting setting{index, std::clamp(*number, minimum, maximum), {}};
    if (setting.value != *number) {
        setting.clampNotice = std::string(id) + " " + withUnit(parameters, index, *number) +
                              " is outside " + QM::numberText(minimum) + " to " +
                              withUnit(parameters, index, maximum) + "; using " +
                              withUnit(parameters, index, setting.value);
    }
    return setting;
}

ParameterSetting parseAssignment(const QM::IQMParameterSet& parameters, const std::string& text) {
    const std::size_t sign = text.find('=');
    if (sign == std::string::npos)
        throw HostError("--set " + text + ": write it as ID=VALUE");
    try {
        return parseSetting(parameters, std::string_view(text).substr(0, sign),
                            std::string_view(text).substr(sign + 1));
    } catch (const HostError& error) {
        throw HostError("--set " + text + ": " + error.what());
    }
}
