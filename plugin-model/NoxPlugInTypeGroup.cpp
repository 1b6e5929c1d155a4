// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/NoxPlugInTypeGroup.h"

NoxPlugInTypeGroup::NoxPlugInTypeGroup(INoxPlugInEnvironment* environment,
                                       std::vector<FourCharCode> typeCodes)
    : environment_(environment)
    , codes(std::move(typeCodes))
    , types(codes.size()) {}

NoxPlugInTypeGroup::~NoxPlugInTypeGroup() = default;

std::int32_t NoxPlugInTypeGroup::typeCount() const {
    return static_cast<std::int32_t>(codes.size());
}

FourCharCode NoxPlugInTypeGroup::typeCodeOfIndex(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= codes.size())
        return 0;
    return codes[static_cast<std::size_t>(index)];
}

std::int32_t NoxPlugInTypeGroup::indexOfTypeCode(FourCharCode code) const {
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (codes[i] == code)
            return static_cast<std::int32_t>(i);
    }
    return -1;
}

INoxPlugInType* NoxPlugInTypeGroup::typeOfIndex(std::int32_t index) {
    const FourCharCode code = typeCodeOfIndex(index);
    if (code == 0)
        return nullptr;
    auto& type = types[static_cast<std::size_t>(index)];
    if (type == nullptr)
        type = createType(code);
    return type.get();
}
