// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/tests/support/FakeStatefulPlugIn.h"

#include "presets/record/PresetComparison.h"

FakeStatefulPlugIn::FakeStatefulPlugIn() {
    state.name = "fake";
    state.manufacturerCode = fourCharCode("QML ");
    state.productCode = fourCharCode("BRLT");
    state.values = {
        {fourCharCode("afre"), 123.5}, {fourCharCode("gain"), -6.02}, {fourCharCode("mbyp"), 0.0}};
    state.uniqueId = 0x8000000000000077u;
    state.extension = {{"mBlendX", 0.25}};
}

bool FakeStatefulPlugIn::canApplyGenericPreset(const QMGenericPreset& record) const {
    return record.manufacturerCode == state.manufacturerCode &&
           record.productCode == state.productCode;
}

QMGenericPreset FakeStatefulPlugIn::getStateRecord(StateExtent extent) const {
    QMGenericPreset record = state;
    if (extent != StateExtent::complete)
        record.extension = nullptr;
    return record;
}

bool FakeStatefulPlugIn::applyStateRecord(const QMGenericPreset& record) {
    calls.emplace_back("apply");
    if (!canApplyGenericPreset(record))
        return false;
    if (record.extension.is_object() && record.extension.contains("mBlendX"))
        static_cast<void>(record.extension.at("mBlendX").get<double>()); // throws for a text
    state = record;
    return true;
}

void FakeStatefulPlugIn::adaptStateRecord(QMGenericPreset& record) const {
    calls.emplace_back("adapt");
    record.manufacturerCode = state.manufacturerCode;
    record.productCode = state.productCode;
}

bool FakeStatefulPlugIn::equalsStateRecord(const QMGenericPreset& record) const {
    calls.emplace_back("equals");
    return presetsAreEqual(record, state);
}
