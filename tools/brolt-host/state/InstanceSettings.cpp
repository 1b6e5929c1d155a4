// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/InstanceSettings.h"

#include "plugin-model/INoxPlugIn.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/state/StateFile.h"

namespace fs = std::filesystem;

namespace {

constexpr int stereo = 2;

/// Applies the record to an instance once, so that a file is refused before any render begins.
QMGenericPreset readApplicable(ProductModel& product, const fs::path& file) {
    QMGenericPreset record = readStateFile(file).record;
    const auto instance = product.typeForChannels(stereo).createInstance();
    try {
        if (!instance->applyStateRecord(record))
            throw HostError::ofFile(file, "holds settings of another product");
    } catch (const nlohmann::json::exception& error) {
        throw HostError::ofFile(file, std::string("has an extension that cannot be applied: ") +
                                          error.what());
    }
    return record;
}

} // namespace

std::vector<QMGenericPreset> readRecords(const RenderStateOptions& options) {
    ProductModel product;
    std::vector<QMGenericPreset> records;
    for (const auto& file : {options.state, options.preset}) {
        if (file)
            records.push_back(readApplicable(product, *file));
    }
    return records;
}

std::vector<ParameterSetting> readSettings(const std::vector<std::string>& assignments) {
    ProductModel product;
    std::vector<ParameterSetting> settings;
    for (const std::string& text : assignments) {
        settings.push_back(parseAssignment(product.parameters(), text));
        if (!settings.back().clampNotice.empty())
            printMessage("--set " + text + ": " + settings.back().clampNotice);
    }
    return settings;
}

std::unique_ptr<INoxPlugIn> createInstance(ProductModel& product, int channels,
                                           const RenderPlan& plan) {
    auto instance = product.typeForChannels(channels).createAndRecordInstance();
    for (const QMGenericPreset& record : plan.records)
        instance->applyStateRecord(record);
    for (const ParameterSetting& setting : plan.settings)
        instance->setParameterValue(setting.index, setting.value);
    return instance;
}

void saveSettings(const RenderPlan& plan, const RenderStateOptions& options) {
    if (!options.savedState && !options.savedPreset)
        return;
    ProductModel product;
    const auto instance = createInstance(product, stereo, plan);
    const QMGenericPreset record = instance->getStateRecord(StateExtent::complete);
    if (options.savedState) {
        const auto form = stateFormOfExtension(*options.savedState);
        writeStateFile(*options.savedState, record, form.value_or(StateForm::vst3));
    }
    if (options.savedPreset)
        writePresetFile(*options.savedPreset, record);
}
