// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/GenericEditorDescribing.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInType.h"

#include <array>
#include <cmath>

namespace {

using TextBuffer = std::array<char, 256>;

juce::String textOf(const char* text) {
    return juce::String::fromUTF8(text == nullptr ? "" : text);
}

juce::StringArray valueNamesOf(const INoxPlugIn& plugIn, std::int32_t index) {
    const char* const* const names = plugIn.valueNamesPointer(index);
    juce::StringArray texts;
    if (names == nullptr)
        return texts;
    const long count = std::lround(plugIn.maximum(index) - plugIn.minimum(index)) + 1;
    for (long i = 0; i < count; ++i)
        texts.add(textOf(names[i]));
    return texts;
}

GenericParameter parameterOf(const INoxPlugIn& plugIn, std::int32_t index) {
    TextBuffer group{};
    plugIn.copyGroupName(static_cast<std::int32_t>(plugIn.groupIndex(index)), group.data(),
                         group.size());
    return {.id = plugIn.idOfIndex(index),
            .name = textOf(plugIn.namePointer(index)),
            .unit = textOf(plugIn.unitPointer(index)),
            .group = textOf(group.data()),
            .minimum = plugIn.minimum(index),
            .maximum = plugIn.maximum(index),
            .defaultValue = plugIn.defaultValue(index),
            .value = plugIn.parameterValue(index),
            .taper = plugIn.taper(index),
            .step = plugIn.step(index),
            .valueNames = valueNamesOf(plugIn, index),
            .isBypass = plugIn.isBypassParameterIndex(index)};
}

GenericMeter meterOf(const QM::IQMParameterSet& set, std::int32_t meter,
                     const NoxMeterRecord& record) {
    TextBuffer name{};
    set.copyMeterName(meter, name.data(), name.size());
    return {.name = textOf(name.data()),
            .id = set.meterID(meter),
            .kind = set.meterDescriptor(meter)->kind,
            .record = &record};
}

} // namespace

GenericEditorDescription describeForGenericEditor(const INoxPlugIn& plugIn,
                                                  const std::vector<NoxMeterRecord>& records) {
    GenericEditorDescription description;
    const INoxPlugInType* const type = plugIn.type();
    description.productName =
        textOf((type != nullptr ? type->displayNameWithMaker() : plugIn.displayName()).c_str());
    const QM::IQMParameterSet* const set = plugIn.parameterSet();
    if (set == nullptr)
        return description;
    for (std::int32_t index = 0; index < set->parameterCount(); ++index)
        description.parameters.push_back(parameterOf(plugIn, index));
    for (std::int32_t meter = 0; meter < set->meterCount(); ++meter) {
        const auto record = static_cast<std::size_t>(meter);
        if (record < records.size())
            description.meters.push_back(meterOf(*set, meter, records[record]));
    }
    return description;
}
