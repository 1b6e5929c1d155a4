// SPDX-License-Identifier: GPL-3.0-or-later
// Base of a product's type group: creates each type on first request and keeps it.
#pragma once

#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"

class NoxPlugInTypeGroup : public INoxPlugInTypeGroup {
public:
    /// The codes of the group's types in index order. The environment may be null.
    NoxPlugInTypeGroup(INoxPlugInEnvironment* environment, std::vector<FourCharCode> typeCodes);
    ~NoxPlugInTypeGroup() override;
    NoxPlugInTypeGroup(const NoxPlugInTypeGroup&) = delete;
    NoxPlugInTypeGroup& operator=(const NoxPlugInTypeGroup&) = delete;

    [[nodiscard]] INoxPlugInEnvironment* environment() const override { return environment_; }

    [[nodiscard]] std::int32_t typeCount() const override;
    [[nodiscard]] FourCharCode typeCodeOfIndex(std::int32_t index) const override;
    [[nodiscard]] std::int32_t indexOfTypeCode(FourCharCode code) const override;
    INoxPlugInType* typeOfIndex(std::int32_t index) override;

protected:
    /// Makes the type with one of the group's codes.
    virtual std::unique_ptr<INoxPlugInType> createType(FourCharCode code) = 0;

private:
    INoxPlugInEnvironment* environment_;
    std::vector<FourCharCode> codes;
    std::vector<std::unique_ptr<INoxPlugInType>> types;
};
