// SPDX-License-Identifier: GPL-3.0-or-later
// The types of one product, as the environment registers them.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstdint>
#include <string>
#include <vector>

class INoxPlugInEnvironment;
class INoxPlugInType;

class INoxPlugInTypeGroup {
public:
    virtual ~INoxPlugInTypeGroup() = default;

    [[nodiscard]] virtual INoxPlugInEnvironment* environment() const = 0;
    [[nodiscard]] virtual std::int32_t typeCount() const = 0;
    /// 0 out of range.
    [[nodiscard]] virtual FourCharCode typeCodeOfIndex(std::int32_t index) const = 0;
    /// -1 for an unknown code.
    [[nodiscard]] virtual std::int32_t indexOfTypeCode(FourCharCode code) const = 0;
    /// Created on first request and kept by the group; null out of range. [message thread]
    virtual INoxPlugInType* typeOfIndex(std::int32_t index) = 0;
    [[nodiscard]] virtual FourCharCode manufacturerCode() const = 0;
    [[nodiscard]] virtual std::string manufacturerName() const = 0;
    [[nodiscard]] virtual std::vector<std::string> names() const = 0;
};
