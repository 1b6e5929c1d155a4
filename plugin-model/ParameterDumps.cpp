// SPDX-License-Identifier: GPL-3.0-or-later
// The two developers' dumps of a values object, apart from its everyday work.
#include "plugin-model/QMParameterValues.h"

#include "services/Log.h"

namespace QM {

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
            i + 1 < count ? "\t%14.8f,\t// %d '%s' '%s'\n\t" : "\t%14.8f \t// %d '%s' '%s'\n\t";
        std::fprintf(out, format, getValue(i), i, fourCharText(set.idOfIndex(i)).c_str(),
                     set.namePointer(i));
    }
    std::fprintf(out, "\n};\n");
}

void QMParameterValues::logValues() const {
    QM::log(LogLevel::error, "==================================\n");
    for (std::int32_t i = 0; i < set.parameterCount(); ++i)
        QM::log(LogLevel::error, "\t %d \t %s \t %s \t %g \n", i,
                fourCharText(set.idOfIndex(i)).c_str(), set.namePointer(i), getValue(i));
}

} // namespace QM
