// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/QMGenericPresetFilter.h"

#include "presets/record/GenericPresetFormat.h"
#include "presets/record/StdFileStream.h"

#include <algorithm>
#include <optional>

QMGenericPresetFilter::QMGenericPresetFilter(FourCharCode manufacturerCode,
                                             FourCharCode productCode, FourCharCode variantCode)
    : manufacturers{{manufacturerCode}}
    , products{{productCode}}
    , variants{{variantCode}} {}

bool QMGenericPresetFilter::Codes::match(FourCharCode code) const {
    return matchAny || std::find(accepted.begin(), accepted.end(), code) != accepted.end();
}

bool QMGenericPresetFilter::accept(const std::string& path) {
    StdFileStream stream(path, "rb");
    if (!stream.isOpen())
        return false;
    const std::optional<GenericPresetHeader> header =
        readGenericPresetHeader(stream, UndecodableExtension::drop);
    return header && manufacturers.match(header->preset.manufacturerCode) &&
           products.match(header->preset.productCode) && variants.match(header->preset.variantCode);
}
