// SPDX-License-Identifier: GPL-3.0-or-later
// The product's type group: index 0 mono, index 1 stereo.
#pragma once

#include "plugin-model/NoxPlugInTypeGroup.h"

class QMBrolt_PlugInTypeGroup : public NoxPlugInTypeGroup {
public:
    /// The environment may be null and must outlive the group.
    explicit QMBrolt_PlugInTypeGroup(INoxPlugInEnvironment* environment);

    [[nodiscard]] FourCharCode manufacturerCode() const override;

    [[nodiscard]] std::string manufacturerName() const override { return "Quolm"; }

    [[nodiscard]] std::vector<std::string> names() const override { return {"Brolt"}; }

protected:
    std::unique_ptr<INoxPlugInType> createType(FourCharCode code) override;
};
