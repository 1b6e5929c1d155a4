// SPDX-License-Identifier: GPL-3.0-or-later
// One variant of a product (its mono or its stereo form): who it is for every host format, what it
// connects to, its parameter set, and the instances it creates. Everything but instance
// creation is fixed once the type is made and may be asked on [any thread].
#pragma once

#include "plugin-model/FourCharCode.h"
#include "plugin-model/IQMParameterSet.h"
#include "plugin-model/NoxRuntimeArchitecture.h"
#include "plugin-model/QMParameterQueries.h"
#include "plugin-model/ResultCodes.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

class INoxPlugIn;
class INoxPlugInEnvironment;
class INoxPlugInProcessingHost;
class INoxPlugInTypeGroup;

/// Code that runs the type on one instruction set; made by the type's implementation factory.
class INoxPlugInImplementation {
public:
    virtual ~INoxPlugInImplementation() = default;
};

/// A page of the maker's that the editor offers to open.
struct NoxHelpLink {
    std::string title;
    std::string key;
    std::int32_t kind;
    std::string address;
};

/// The three identifiers of a type in an AAX host.
struct NoxAAXTypeIDs {
    FourCharCode native;
    FourCharCode audioSuite;
    FourCharCode dsp;
};

/// Texts and codes.
class INoxPlugInTypeIdentity {
public:
    virtual ~INoxPlugInTypeIdentity() = default;

    [[nodiscard]] virtual INoxPlugInTypeGroup* group() const = 0;
    [[nodiscard]] virtual INoxPlugInEnvironment* environment() const = 0;
    /// 1 for the first type of the group.
    [[nodiscard]] virtual std::int32_t typeIndex() const = 0;
    [[nodiscard]] virtual FourCharCode typeCode() const = 0;
    /// The type code as four characters.
    [[nodiscard]] virtual std::string codeText() const = 0;
    [[nodiscard]] virtual FourCharCode groupManufacturerCode() const = 0;
    /// The type's own code, else the group's.
    [[nodiscard]] virtual FourCharCode manufacturerCode() const = 0;
    /// The type's own code, else the type code.
    [[nodiscard]] virtual FourCharCode productCode() const = 0;
    [[nodiscard]] virtual std::string manufacturerName() const = 0;

    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual std::string fullName() const = 0;
    [[nodiscard]] virtual std::string shortName() const = 0;
    [[nodiscard]] virtual std::string description() const = 0;
    [[nodiscard]] virtual std::string displayNameWithMaker() const = 0;
    [[nodiscard]] virtual std::string bundleName() const = 0;
    [[nodiscard]] virtual std::string productCodeText() const = 0;
    [[nodiscard]] virtual std::string productName() const = 0;
    [[nodiscard]] virtual std::string namePrefix() const = 0;
    /// Names under which hosts' saved projects may know the product.
    [[nodiscard]] virtual std::vector<std::string> alternativeNames() const = 0;
    [[nodiscard]] virtual std::vector<std::string> groupNames() const = 0;
    [[nodiscard]] virtual std::string categoryText() const = 0;
    [[nodiscard]] virtual std::string hostFamilyText() const = 0;
    /// 32 hexadecimal digits.
    [[nodiscard]] virtual std::string vst3ClassID() const = 0;
    [[nodiscard]] virtual std::string aaxBundleID() const = 0;
    [[nodiscard]] virtual NoxAAXTypeIDs aaxTypeIDs() const = 0;
    [[nodiscard]] virtual std::uint32_t categoryBits() const = 0;
    [[nodiscard]] virtual std::vector<NoxHelpLink> helpLinks() const = 0;
    [[nodiscard]] virtual std::string helpPanelLogo() const = 0;
    /// Name of the class that draws the product's editor; empty without one.
    [[nodiscard]] virtual std::string editorClassName() const = 0;
};

/// Inputs and outputs.
class INoxPlugInTypeIO {
public:
    virtual ~INoxPlugInTypeIO() = default;

    [[nodiscard]] virtual std::int32_t inputCount() const = 0;
    [[nodiscard]] virtual std::int32_t outputCount() const = 0;
    /// Whether a further input channel may steer the processing.
    [[nodiscard]] virtual bool hasSidechain() const = 0;
    [[nodiscard]] virtual bool supportsIOConfiguration(std::int32_t inputs,
                                                       std::int32_t outputs) const = 0;
    /// 0 out of range.
    [[nodiscard]] virtual std::int32_t inputConfigurationCode(std::int32_t input) const = 0;
    [[nodiscard]] virtual std::int32_t outputConfigurationCode(std::int32_t output) const = 0;
    /// Empty out of range.
    [[nodiscard]] virtual std::string inputChannelName(std::int32_t input) const = 0;
    [[nodiscard]] virtual std::string outputChannelName(std::int32_t output) const = 0;
};

class INoxPlugInType : public INoxPlugInTypeIdentity,
                       public INoxPlugInTypeIO,
                       public QM::QMParameterQueries {
public:
    // Parameters and meters.

    /// Null for a type without a set.
    [[nodiscard]] virtual QM::IQMParameterSet* parameterSet() = 0;
    [[nodiscard]] virtual const QM::IQMParameterSet* parameterSet() const = 0;
    /// The values object of a new instance; none without a set.
    virtual std::unique_ptr<QM::QMParameterValues> createParameterValues() = 0;
    [[nodiscard]] virtual std::int32_t meterCount() const = 0;
    /// Index of the bypass parameter; -1 without one.
    [[nodiscard]] virtual std::int32_t bypassParameterIndex() const = 0;

    // Instances. [message thread] or the host's control thread

    /// A new instance without a processing host, not recorded by the type.
    virtual std::unique_ptr<INoxPlugIn> createInstance() = 0;
    /// The same, recorded in the type's list until it is destroyed.
    virtual std::unique_ptr<INoxPlugIn> createAndRecordInstance() = 0;
    /// Has the host put one of the type's own recorded instances into a slot; noSuchPlugIn for any
    /// other. Failures are logged with their text.
    virtual NoxResult instantiate(INoxPlugInProcessingHost& host, INoxPlugIn* instance) = 0;
    [[nodiscard]] virtual std::int32_t instanceCount() const = 0;
    /// Null out of range.
    [[nodiscard]] virtual INoxPlugIn* instanceAt(std::int32_t index) const = 0;
    /// Drops a dying instance from the list.
    virtual void forgetInstance(const INoxPlugIn& instance) = 0;

    // Registration.

    /// Position among all types of the environment; answers 0.
    virtual std::int32_t setGlobalIndex(std::int32_t index) = 0;
    [[nodiscard]] virtual std::int32_t globalIndex() const = 0;
    /// The entry that a type code designates in this type's group; -1 when unknown.
    [[nodiscard]] virtual std::int32_t resolveTypeCode(FourCharCode code) const = 0;
    /// The type at such an entry; null out of range.
    virtual INoxPlugInType* typeAtEntry(std::int32_t entry) = 0;

    // Implementations and files.

    /// Made by the factory on first request and kept. None, with a line in the log, for an
    /// instruction set without an implementation.
    virtual INoxPlugInImplementation* QueryImplementation(std::int32_t isa) = 0;
    /// Throws std::invalid_argument for an architecture without object files.
    [[nodiscard]] virtual std::string
    dspObjectFileName(NoxRuntimeArchitecture architecture) const = 0;
};
