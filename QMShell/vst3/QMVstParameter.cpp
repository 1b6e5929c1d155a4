// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/QMVstParameter.h"

#include "QMShell/vst3/Vst3Text.h"
#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/ValueText.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

using namespace Steinberg;
using namespace Steinberg::Vst;

namespace {

/// Bytes of texts asked from the instance.
constexpr std::size_t textSize = 256;
constexpr std::size_t longestName = 128;
constexpr std::size_t shortTitleLength = 5;

/// The plain value that a value name stands for. The last name is not among those compared: it
/// never was, and hosts that send it get no answer.
std::optional<double> valueOfName(const INoxPlugIn& instance, int32 index,
                                  const std::string& text) {
    const char* const* const names = instance.valueNamesPointer(index);
    const double minimum = instance.minimum(index);
    const float range = static_cast<float>(instance.maximum(index)) - static_cast<float>(minimum);
    for (int32 k = 0; static_cast<float>(k) < range; ++k) {
        if (std::strncmp(text.c_str(), names[k], longestName) == 0)
            return minimum + k;
    }
    return std::nullopt;
}

std::string withoutUnit(const std::string& text, const char* unit) {
    return *unit == '\0' ? text : text.substr(0, text.find(unit));
}

int32 flagsOf(const INoxPlugIn& instance, int32 index) {
    int32 flags = ParameterInfo::kNoFlags;
    if (instance.option2(index) != 0)
        flags |= ParameterInfo::kCanAutomate;
    if (instance.valueNamesPointer(index) != nullptr)
        flags |= ParameterInfo::kIsList;
    if (instance.option3(index) != 0)
        flags |= ParameterInfo::kIsHidden;
    if (instance.isBypassParameterIndex(index))
        flags |= ParameterInfo::kIsBypass;
    return flags;
}

} // namespace

QMVstParameter::QMVstParameter(const INoxPlugIn& plugIn, int32 parameterIndex, bool publishIndex)
    : instance(plugIn)
    , index(parameterIndex) {
    describe(publishIndex);
    valueNormalized = info.defaultNormalizedValue;
}

void QMVstParameter::describe(bool publishIndex) {
    std::array<char, textSize> name{};
    instance.longName(index, name.data(), name.size());
    copyToString128(name.data(), info.title);
    std::array<char, shortTitleLength + 1> shortName{};
    instance.copyName(index, shortName.data(), shortName.size());
    copyToString128(shortName.data(), info.shortTitle);

    info.id = publishIndex ? static_cast<ParamID>(index) : instance.idOfIndex(index);
    info.unitId = kRootUnitId;
    info.flags = flagsOf(instance, index);
    info.stepCount = 0;
    if (instance.taper(index) == NoxTaper::stepped)
        info.stepCount = static_cast<int32>(instance.maximum(index) - instance.minimum(index));
    info.defaultNormalizedValue = instance.plainToNormalised(index, instance.defaultValue(index));
}

void QMVstParameter::refresh() {
    setNormalized(toNormalized(instance.parameterValue(index)));
}

void QMVstParameter::toString(ParamValue normalised, String128 text) const {
    std::array<char, textSize> value{"<not-set>"};
    instance.formatValueText(index, toPlain(normalised), value.data(), value.size());
    copyToString128(std::string(value.data()) + " " + instance.unitPointer(index), text);
}

bool QMVstParameter::fromString(const TChar* text, ParamValue& normalised) const {
    const std::string utf8 = utf8OfString128(text);
    const std::optional<double> plain =
        instance.valueNamesPointer(index) != nullptr
            ? valueOfName(instance, index, utf8)
            : QM::parseValueText(withoutUnit(utf8, instance.unitPointer(index)));
    if (!plain)
        return false;
    // The instance's own conversion has no upper end; a host's value has.
    normalised = std::clamp(toNormalized(*plain), 0.0, 1.0);
    return true;
}

ParamValue QMVstParameter::toPlain(ParamValue normalised) const {
    return instance.normalisedToPlain(index, normalised);
}

ParamValue QMVstParameter::toNormalized(ParamValue plain) const {
    return instance.plainToNormalised(index, plain);
}
