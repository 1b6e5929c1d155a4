// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/NoxPlugInType.h"

#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/INoxPlugInTypeGroup.h"
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/QMParameterValues.h"
#include "services/Log.h"

#include <algorithm>
#include <stdexcept>

NoxPlugInType::NoxPlugInType(INoxPlugInTypeGroup& group, INoxPlugInEnvironment* environment,
                             NoxPlugInTypeFields typeFields,
                             std::unique_ptr<QM::IQMParameterSet> parameterSet)
    : group_(group)
    , environment_(environment)
    , fields(std::move(typeFields))
    , set(std::move(parameterSet)) {}

NoxPlugInType::~NoxPlugInType() = default;

FourCharCode NoxPlugInType::groupManufacturerCode() const {
    return group_.manufacturerCode();
}

FourCharCode NoxPlugInType::manufacturerCode() const {
    return fields.manufacturerCode != 0 ? fields.manufacturerCode : groupManufacturerCode();
}

FourCharCode NoxPlugInType::productCode() const {
    return fields.productCode != 0 ? fields.productCode : fields.typeCode;
}

std::string NoxPlugInType::manufacturerName() const {
    return group_.manufacturerName();
}

std::string NoxPlugInType::displayNameWithMaker() const {
    return fields.displayNameWithMaker;
}

std::vector<std::string> NoxPlugInType::alternativeNames() const {
    return fields.alternativeNames;
}

std::vector<std::string> NoxPlugInType::groupNames() const {
    return group_.names();
}

std::unique_ptr<QM::QMParameterValues> NoxPlugInType::createParameterValues() {
    return set != nullptr ? set->createParameterValues() : nullptr;
}

std::int32_t NoxPlugInType::meterCount() const {
    return set != nullptr ? set->meterCount() : 0;
}

std::int32_t NoxPlugInType::bypassParameterIndex() const {
    const bool known = set != nullptr && fields.bypassParameterID != 0;
    return known ? set->indexOfID(fields.bypassParameterID) : -1;
}

std::unique_ptr<INoxPlugIn> NoxPlugInType::createInstance() {
    return std::make_unique<NoxPlugIn>(*this, nullptr, environment_);
}

std::unique_ptr<INoxPlugIn> NoxPlugInType::createAndRecordInstance() {
    std::unique_ptr<INoxPlugIn> instance = createInstance();
    if (instance != nullptr)
        instances.push_back(instance.get());
    return instance;
}

NoxResult NoxPlugInType::instantiate(INoxPlugInProcessingHost& host, INoxPlugIn* instance) {
    if (instance == nullptr ||
        std::find(instances.begin(), instances.end(), instance) == instances.end())
        return NoxResultCode::noSuchPlugIn;
    const NoxResult result = host.instantiate(*instance);
    // A box without a device is an everyday state, not worth a line.
    if (result != NoxResultCode::noError && result != NoxResultCode::driverNoDevice)
        QM::log(QM::LogLevel::error, "NPIT[%p]: Error: %d [%s] while instantiating plug.\n",
                static_cast<void*>(this), result, noxResultText(result));
    return result;
}

std::int32_t NoxPlugInType::instanceCount() const {
    return static_cast<std::int32_t>(instances.size());
}

INoxPlugIn* NoxPlugInType::instanceAt(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= instances.size())
        return nullptr;
    return instances[static_cast<std::size_t>(index)];
}

void NoxPlugInType::forgetInstance(const INoxPlugIn& instance) {
    std::erase(instances, &instance);
}

std::int32_t NoxPlugInType::setGlobalIndex(std::int32_t index) {
    globalIndex_ = index;
    return 0;
}

std::int32_t NoxPlugInType::resolveTypeCode(FourCharCode code) const {
    return group_.indexOfTypeCode(code);
}

INoxPlugInType* NoxPlugInType::typeAtEntry(std::int32_t entry) {
    return group_.typeOfIndex(entry);
}

std::unique_ptr<INoxPlugInImplementation> NoxPlugInType::createImplementation(std::int32_t) {
    return nullptr;
}

INoxPlugInImplementation* NoxPlugInType::QueryImplementation(std::int32_t isa) {
    if (isa >= 0 && static_cast<std::size_t>(isa) < isaCount) {
        auto& kept = implementations[static_cast<std::size_t>(isa)];
        if (kept == nullptr)
            kept = createImplementation(isa);
        if (kept != nullptr)
            return kept.get();
    }
    QM::log(QM::LogLevel::error,
            "Error: NoxPlugInType::QueryImplementation for isa %d in '%s' not implemented!\n", isa,
            fields.name.c_str());
    return nullptr;
}

std::string NoxPlugInType::dspObjectFileName(NoxRuntimeArchitecture architecture) const {
    switch (architecture) {
    case NoxArchitecture::dspMac:
        return fields.bundleName + "_mac.dspobj";
    case NoxArchitecture::dsp3d:
        return fields.bundleName + "_3d.dspobj";
    default:
        throw std::invalid_argument("Invalid NoxRuntimeArchitecture: RTA is not defined.");
    }
}

std::string NoxPlugInType::metadataFileName(FourCharCode code) {
    return "metadata/" + fourCharText(code) + ".pluginmd";
}

namespace {

NoxPlugInType::ResourcePathLookup& resourcePathLookup() {
    static NoxPlugInType::ResourcePathLookup lookup;
    return lookup;
}

} // namespace

void NoxPlugInType::setResourcePathLookup(ResourcePathLookup lookup) {
    resourcePathLookup() = std::move(lookup);
}

std::string NoxPlugInType::objectPath() const {
    constexpr std::size_t longestPath = 1024;
    const auto& lookup = resourcePathLookup();
    return lookup ? lookup("build/" + fields.bundleName).substr(0, longestPath) : std::string();
}
