// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_PlugInType.h"

#include "brolt/model/QMBrolt_ParametersSet.h"
#include "brolt/model/QMBrolt_PlugIn.h"
#include "brolt/model/QMBrolt_ProductCodes.h"
#include "plugin-model/INoxPlugInTypeGroup.h"
#include "plugin-model/QMParameterValues.h"

namespace {

constexpr std::int32_t ordinaryLink = 0;
constexpr std::int32_t productPageLink = 4;
constexpr std::int32_t usersGuideLink = 8;

/// The maker's redirector. Pages of a product name it in a second key, so that one redirector
/// serves every product.
NoxHelpLink helpLink(const std::string& title, const std::string& key, std::int32_t kind,
                     const std::string& product = {}) {
    std::string address = "https://quolm.example/l/?l=" + key;
    if (!product.empty())
        address += "&p=" + product;
    return {title, key, kind, address};
}

std::vector<NoxHelpLink> helpLinks(const std::string& productName, const std::string& productCode) {
    return {
        helpLink("Quolm Website", "qmsite", ordinaryLink),
        helpLink("Quolm Tech Support", "qmsupport", ordinaryLink),
        helpLink("Quolm FAQs", "qmfaq", ordinaryLink),
        helpLink(productName + " Product Page", "prod", productPageLink, productCode),
        helpLink(productName + " Users Guide [PDF]", "um", usersGuideLink, productCode),
    };
}

NoxPlugInTypeFields typeFields(FourCharCode code) {
    const bool mono = code == QMBrolt::monoTypeCode;
    NoxPlugInTypeFields fields;
    fields.typeIndex = mono ? 1 : 2;
    fields.typeCode = code;
    fields.inputConfigurationCodes = mono ? std::vector{0} : std::vector{1, 2};
    // Both outputs of the stereo type carry the same code; saved sessions know it so.
    fields.outputConfigurationCodes = mono ? std::vector{1} : std::vector{3, 3};
    fields.name = "Brolt";
    fields.fullName = fields.name + (mono ? " (m/m)" : " (s/s)");
    fields.shortName = fields.name;
    fields.description = "Brolt";
    fields.displayNameWithMaker = "QM Brolt";
    fields.bundleName = "QMBrolt";
    fields.productCodeText = "QMBRLT";
    fields.productName = "Brolt";
    fields.namePrefix = "[v4] ";
    fields.categoryText = "QMFree";
    fields.hostFamilyText = "QMShell";
    // "VST", the VST 2 identifier 'QMbl', then "qm brolt" and a zero: the class takes over from a
    // VST 2 instance of the product in a saved project.
    fields.vst3ClassID = "565354514D626C716D2062726F6C7400";
    fields.aaxBundleID = "example.quolm." + fields.bundleName;
    fields.alternativeNames = {"QM Brolt", "QMBrolt", "Brolt"};
    fields.manufacturerCode = QMBrolt::manufacturerCode;
    fields.productCode = QMBrolt::productCode;
    fields.aaxTypeIDs = {fourCharCode("Nat1"), fourCharCode("ASRF"), fourCharCode("Dsp1")};
    if (!mono)
        fields.aaxTypeIDs = {fourCharCode("Nat2"), fourCharCode("ASRF"), fourCharCode("Dsp2")};
    fields.categoryBits = 2049;
    fields.helpLinks = helpLinks(fields.productName, fields.productCodeText);
    fields.helpPanelLogo = "QMLogo_128x128ForDark.png";
    fields.editorClassName = "QMBrolt UI";
    fields.bypassParameterID = QMBrolt::bypassParameterID;
    return fields;
}

std::unique_ptr<QM::IQMParameterSet> makeParameterSet(const INoxPlugInTypeGroup& group,
                                                      FourCharCode code) {
    auto set = std::make_unique<QM::QMBrolt_ParametersSet>(code == QMBrolt::monoTypeCode ? 1 : 2);
    set->setFirstCode(group.manufacturerCode());
    set->setSecondCode(code);
    return set;
}

} // namespace

QMBrolt_PlugInType::QMBrolt_PlugInType(INoxPlugInTypeGroup& group,
                                       INoxPlugInEnvironment* environment, FourCharCode code)
    : NoxPlugInType(group, environment, typeFields(code), makeParameterSet(group, code)) {}

std::unique_ptr<INoxPlugIn> QMBrolt_PlugInType::createInstance() {
    return std::make_unique<QMBrolt_PlugIn>(*this, nullptr, environment());
}
