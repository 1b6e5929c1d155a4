// SPDX-License-Identifier: GPL-3.0-or-later
// Base of every plug-in type: answers from fields that the product fills when it makes the type,
// keeps the list of instances and the implementations.
#pragma once

#include "plugin-model/INoxPlugInType.h"

#include <functional>

class NoxPlugIn;

/// What a product says of one type. The defaults are those of a type nobody has filled.
struct NoxPlugInTypeFields {
    std::int32_t typeIndex = 0; ///< 1 for the first type of a group
    FourCharCode typeCode = 0;
    std::vector<std::int32_t> inputConfigurationCodes; ///< one for each input channel
    std::vector<std::int32_t> outputConfigurationCodes;
    bool hasSidechain = false;
    std::string name = "Undefined Plugin";
    std::string fullName = "Undefined Plugin";
    std::string shortName = "Undefined Plugin";
    std::string description = "Undefined Plugin Description";
    std::string displayNameWithMaker = "Undefined Plugin";
    std::string bundleName;
    std::string productCodeText;
    std::string productName;
    std::string namePrefix;
    std::string categoryText = "+DSP";
    std::string hostFamilyText = "+DSP";
    std::string vst3ClassID;
    std::string aaxBundleID;
    std::vector<std::string> alternativeNames;
    FourCharCode manufacturerCode = 0; ///< 0: the group's
    FourCharCode productCode = 0;      ///< 0: the type code
    NoxAAXTypeIDs aaxTypeIDs{};
    std::uint32_t categoryBits = 0;
    std::vector<NoxHelpLink> helpLinks;
    std::string helpPanelLogo;
    std::string editorClassName;
    FourCharCode bypassParameterID = 0;
};

class NoxPlugInType : public INoxPlugInType {
public:
    /// The set may be null. Group and environment outlive the type; the environment may be null.
    NoxPlugInType(INoxPlugInTypeGroup& group, INoxPlugInEnvironment* environment,
                  NoxPlugInTypeFields fields, std::unique_ptr<QM::IQMParameterSet> parameterSet);
    ~NoxPlugInType() override;
    NoxPlugInType(const NoxPlugInType&) = delete;
    NoxPlugInType& operator=(const NoxPlugInType&) = delete;

    // Identity.
    [[nodiscard]] INoxPlugInTypeGroup* group() const override { return &group_; }

    [[nodiscard]] INoxPlugInEnvironment* environment() const override { return environment_; }

    [[nodiscard]] std::int32_t typeIndex() const override { return fields.typeIndex; }

    [[nodiscard]] FourCharCode typeCode() const override { return fields.typeCode; }

    [[nodiscard]] std::string codeText() const override { return fourCharText(fields.typeCode); }

    [[nodiscard]] FourCharCode groupManufacturerCode() const override;
    [[nodiscard]] FourCharCode manufacturerCode() const override;
    [[nodiscard]] FourCharCode productCode() const override;
    [[nodiscard]] std::string manufacturerName() const override;

    [[nodiscard]] std::string name() const override { return fields.name; }

    [[nodiscard]] std::string fullName() const override { return fields.fullName; }

    [[nodiscard]] std::string shortName() const override { return fields.shortName; }

    [[nodiscard]] std::string description() const override { return fields.description; }

    [[nodiscard]] std::string displayNameWithMaker() const override;

    [[nodiscard]] std::string bundleName() const override { return fields.bundleName; }

    [[nodiscard]] std::string productCodeText() const override { return fields.productCodeText; }

    [[nodiscard]] std::string productName() const override { return fields.productName; }

    [[nodiscard]] std::string namePrefix() const override { return fields.namePrefix; }

    [[nodiscard]] std::vector<std::string> alternativeNames() const override;
    [[nodiscard]] std::vector<std::string> groupNames() const override;

    [[nodiscard]] std::string categoryText() const override { return fields.categoryText; }

    [[nodiscard]] std::string hostFamilyText() const override { return fields.hostFamilyText; }

    [[nodiscard]] std::string vst3ClassID() const override { return fields.vst3ClassID; }

    [[nodiscard]] std::string aaxBundleID() const override { return fields.aaxBundleID; }

    [[nodiscard]] NoxAAXTypeIDs aaxTypeIDs() const override { return fields.aaxTypeIDs; }

    [[nodiscard]] std::uint32_t categoryBits() const override { return fields.categoryBits; }

    [[nodiscard]] std::vector<NoxHelpLink> helpLinks() const override { return fields.helpLinks; }

    [[nodiscard]] std::string helpPanelLogo() const override { return fields.helpPanelLogo; }

    [[nodiscard]] std::string editorClassName() const override { return fields.editorClassName; }

    // Inputs and outputs.
    [[nodiscard]] std::int32_t inputCount() const override;
    [[nodiscard]] std::int32_t outputCount() const override;

    [[nodiscard]] bool hasSidechain() const override { return fields.hasSidechain; }

    [[nodiscard]] bool supportsIOConfiguration(std::int32_t inputs,
                                               std::int32_t outputs) const override;
    [[nodiscard]] std::int32_t inputConfigurationCode(std::int32_t input) const override;
    [[nodiscard]] std::int32_t outputConfigurationCode(std::int32_t output) const override;
    [[nodiscard]] std::string inputChannelName(std::int32_t input) const override;
    [[nodiscard]] std::string outputChannelName(std::int32_t output) const override;

    // Parameters and meters.
    [[nodiscard]] QM::IQMParameterSet* parameterSet() override { return set.get(); }

    [[nodiscard]] const QM::IQMParameterSet* parameterSet() const override { return set.get(); }

    std::unique_ptr<QM::QMParameterValues> createParameterValues() override;
    [[nodiscard]] std::int32_t meterCount() const override;
    [[nodiscard]] std::int32_t bypassParameterIndex() const override;

    // Instances.
    std::unique_ptr<INoxPlugIn> createInstance() override;
    std::unique_ptr<INoxPlugIn> createAndRecordInstance() override;
    NoxResult instantiate(INoxPlugInProcessingHost& host, INoxPlugIn* instance) override;
    [[nodiscard]] std::int32_t instanceCount() const override;
    [[nodiscard]] INoxPlugIn* instanceAt(std::int32_t index) const override;
    void forgetInstance(const INoxPlugIn& instance) override;

    // Registration.
    std::int32_t setGlobalIndex(std::int32_t index) override;

    [[nodiscard]] std::int32_t globalIndex() const override { return globalIndex_; }

    [[nodiscard]] std::int32_t resolveTypeCode(FourCharCode code) const override;
    INoxPlugInType* typeAtEntry(std::int32_t entry) override;

    // Implementations and files.
    INoxPlugInImplementation* QueryImplementation(std::int32_t isa) override;
    [[nodiscard]] std::string dspObjectFileName(NoxRuntimeArchitecture architecture) const override;

    /// "metadata/" with the code's four characters and ".pluginmd". [any thread]
    static std::string metadataFileName(FourCharCode code);

    /// Finds a resource by a path relative to the bundle's resources; handed in from above.
    using ResourcePathLookup = std::function<std::string(const std::string&)>;
    static void setResourcePathLookup(ResourcePathLookup lookup);
    /// Path of the type's object file, at most 1024 characters; empty without a lookup.
    [[nodiscard]] std::string objectPath() const;

protected:
    /// Makes the implementation for an instruction set; none in the base.
    virtual std::unique_ptr<INoxPlugInImplementation> createImplementation(std::int32_t isa);

private:
    [[nodiscard]] const QM::IQMParameterSet* queriedSet() const override { return set.get(); }

    static constexpr std::size_t isaCount = 15;

    INoxPlugInTypeGroup& group_;
    INoxPlugInEnvironment* environment_;
    NoxPlugInTypeFields fields;
    std::unique_ptr<QM::IQMParameterSet> set;
    std::vector<INoxPlugIn*> instances;
    std::array<std::unique_ptr<INoxPlugInImplementation>, isaCount> implementations;
    std::int32_t globalIndex_ = -1;
};
