// SPDX-License-Identifier: GPL-3.0-or-later
// The two developers' dumps of a values object, apart from its everyday work.
#include "plugin-model/QMParameterValues.h"

#include "plugin-model/NumberText.h"
#include "services/Log.h"

#include <array>
#include <charconv>

namespace QM {
namespace {

/// The digits that "%.8f" gives in the C locale: a comma would make two numbers of one in the
/// dumped table.
std::string fixedText(double value) {
    constexpr int decimals = 8;
    std::array<char, 512> text{}; // the greatest number has 309 digits before its point
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, decimals);
    return {text.data(), result.ptr};
}

} // namespace

void QMParameterValues::dumpDefaultsTable(const char* name, std::FILE* stream) const {
    std::FILE* out = stream != nullptr ? stream : stderr;
    if (name != nullptr) {
        std::fprintf(out, "// parameters for %s \n", name);
        std::fprintf(out, "static NoxPlugInParameter k%s[] =  {\n\t", name);
    } else {
        std::fprintf(out, "static NoxPlugInParameter kDefaultValues[] =  {\n\t");
    }
    const std::int32_t count = set.parameterCount();
    for (std::int32_t i = 0; i < count; ++i) {
        const char* format =
            i + 1 < count ? "\t%14s,\t// %d '%s' '%s'\n\t" : "\t%14s \t// %d '%s' '%s'\n\t";
        std::fprintf(out, format, fixedText(getValue(i)).c_str(), i,
                     fourCharText(set.idOfIndex(i)).c_str(), set.namePointer(i));
    }
    std::fprintf(out, "\n};\n");
}

void QMParameterValues::logValues() const {
    QM::log(LogLevel::error, "==================================\n");
    for (std::int32_t i = 0; i < set.parameterCount(); ++i)
        QM::log(LogLevel::error, "\t %d \t %s \t %s \t %s \n", i,
                fourCharText(set.idOfIndex(i)).c_str(), set.namePointer(i),
                numberText(getValue(i)).c_str());
}

} // namespace QM
