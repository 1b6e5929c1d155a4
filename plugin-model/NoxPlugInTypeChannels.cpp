// SPDX-License-Identifier: GPL-3.0-or-later
// What a plug-in type connects to.
#include "plugin-model/NoxPlugInType.h"

namespace {

std::int32_t codeAt(const std::vector<std::int32_t>& codes, std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= codes.size())
        return 0;
    return codes[static_cast<std::size_t>(index)];
}

std::string channelName(std::int32_t channel, std::int32_t count) {
    if (channel < 0 || channel >= count)
        return {};
    if (count == 1)
        return "Mono";
    return channel == 0 ? "Left" : "Right";
}

} // namespace

std::int32_t NoxPlugInType::inputCount() const {
    return static_cast<std::int32_t>(fields.inputConfigurationCodes.size());
}

std::int32_t NoxPlugInType::outputCount() const {
    return static_cast<std::int32_t>(fields.outputConfigurationCodes.size());
}

bool NoxPlugInType::supportsIOConfiguration(std::int32_t inputs, std::int32_t outputs) const {
    return inputs == inputCount() && outputs == outputCount();
}

std::int32_t NoxPlugInType::inputConfigurationCode(std::int32_t input) const {
    return codeAt(fields.inputConfigurationCodes, input);
}

std::int32_t NoxPlugInType::outputConfigurationCode(std::int32_t output) const {
    return codeAt(fields.outputConfigurationCodes, output);
}

std::string NoxPlugInType::inputChannelName(std::int32_t input) const {
    return channelName(input, inputCount());
}

std::string NoxPlugInType::outputChannelName(std::int32_t output) const {
    return channelName(output, outputCount());
}
