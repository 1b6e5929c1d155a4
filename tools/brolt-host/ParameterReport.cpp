// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ParameterReport.h"

#include "plugin-model/NumberText.h"

#include <array>

namespace {

using TextBuffer = std::array<char, 64>;

std::string textOnly(const QM::IQMParameterSet& parameters, std::int32_t index, double value) {
    TextBuffer text{};
    parameters.formatValueText(index, value, text.data(), text.size());
    return text.data();
}

std::string textWithUnit(const QM::IQMParameterSet& parameters, std::int32_t index, double value) {
    TextBuffer text{};
    parameters.formatValueTextWithUnit(index, value, text.data(), text.size());
    return text.data();
}

int valueNameCount(const QM::IQMParameterSet& parameters, std::int32_t index) {
    if (parameters.valueNamesPointer(index) == nullptr)
        return 0;
    return static_cast<int>(parameters.maximum(index) - parameters.minimum(index)) + 1;
}

/// "0 = Engaged (shown as On), …": the name is what may be typed, the text what is displayed.
std::string namedValues(const QM::IQMParameterSet& parameters, std::int32_t index) {
    std::string list;
    for (int i = 0; i < valueNameCount(parameters, index); ++i) {
        const double value = parameters.minimum(index) + i;
        const std::string name = parameters.valueNamesPointer(index)[i];
        const std::string shown = displayText(parameters, index, value);
        list += (i == 0 ? "" : ", ") + QM::numberText(value) + " = " + name;
        if (shown != name)
            list += " (shown as " + shown + ")";
    }
    return list;
}

} // namespace

std::string displayText(const QM::IQMParameterSet& parameters, std::int32_t index, double value) {
    const std::string text = textWithUnit(parameters, index, value);
    return text.empty() ? textOnly(parameters, index, value) : text;
}

std::vector<TextRow> parameterRows(const QM::IQMParameterSet& parameters) {
    std::vector<TextRow> rows{{"ID", "Name", "Unit", "Range", "Default", "Displayed: minimum",
                               "default", "maximum", "Values"}};
    for (std::int32_t i = 0; i < parameters.parameterCount(); ++i) {
        const double minimum = parameters.minimum(i);
        const double maximum = parameters.maximum(i);
        const double standard = parameters.defaultValue(i);
        const std::string unit = parameters.unitPointer(i);
        rows.push_back({fourCharText(parameters.idOfIndex(i)), parameters.namePointer(i),
                        unit.empty() ? "-" : unit,
                        QM::numberText(minimum) + " to " + QM::numberText(maximum),
                        QM::numberText(standard), displayText(parameters, i, minimum),
                        displayText(parameters, i, standard), displayText(parameters, i, maximum),
                        namedValues(parameters, i)});
    }
    return rows;
}

std::vector<TextRow> parameterData(const QM::IQMParameterSet& parameters) {
    std::vector<TextRow> rows{{"index", "id", "name", "unit", "minimum", "maximum", "default",
                               "minimum_text", "maximum_text", "default_text",
                               "default_text_with_unit", "value_names", "value_texts"}};
    for (std::int32_t i = 0; i < parameters.parameterCount(); ++i) {
        const double minimum = parameters.minimum(i);
        const double maximum = parameters.maximum(i);
        const double standard = parameters.defaultValue(i);
        std::string names;
        std::string texts;
        for (int v = 0; v < valueNameCount(parameters, i); ++v) {
            names += (v == 0 ? "" : "|") + std::string(parameters.valueNamesPointer(i)[v]);
            texts += (v == 0 ? "" : "|") + textOnly(parameters, i, minimum + v);
        }
        rows.push_back({std::to_string(i), fourCharText(parameters.idOfIndex(i)),
                        parameters.namePointer(i), parameters.unitPointer(i),
                        QM::numberText(minimum), QM::numberText(maximum), QM::numberText(standard),
                        textOnly(parameters, i, minimum), textOnly(parameters, i, maximum),
                        textOnly(parameters, i, standard), textWithUnit(parameters, i, standard),
                        names, texts});
    }
    return rows;
}
