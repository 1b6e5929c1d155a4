// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"

#include "brolt/model/QMBrolt_PlugInType.h"
#include "brolt/model/QMBrolt_ProductCodes.h"
#include "plugin-model/QMParameterValues.h"

QMBrolt_PlugInTypeGroup::QMBrolt_PlugInTypeGroup(INoxPlugInEnvironment* environment)
    : NoxPlugInTypeGroup(environment, {QMBrolt::monoTypeCode, QMBrolt::stereoTypeCode}) {}

FourCharCode QMBrolt_PlugInTypeGroup::manufacturerCode() const {
    return QMBrolt::manufacturerCode;
}

std::unique_ptr<INoxPlugInType> QMBrolt_PlugInTypeGroup::createType(FourCharCode code) {
    return std::make_unique<QMBrolt_PlugInType>(*this, environment(), code);
}
