// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ProductModel.h"

#include "brolt/model/QMBrolt_ProductCodes.h"

ProductModel::ProductModel()
    : group_(&environment_) {
    environment_.registerTypeGroup(group_);
}

INoxPlugInType& ProductModel::typeForChannels(int channels) {
    return *group_.typeOfIndex(channels == 1 ? QMBrolt::monoTypeIndex : QMBrolt::stereoTypeIndex);
}
