// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/support/ExtensionCheck.h"

#include "fuzz/support/FuzzedInstance.h"
#include "presets/record/QMGenericPreset.h"

void requireHarmless(const nlohmann::json& document) {
    for (const bool withValues : {false, true}) {
        FuzzedInstance instance;
        QMGenericPreset record = instance.plugIn.getStateRecord(StateExtent::complete);
        if (!withValues)
            record.values.clear();
        record.extension = document;
        runReader(instance, [&] { instance.plugIn.applyStateRecord(record); });
        instance.requireOrder();
    }
}
