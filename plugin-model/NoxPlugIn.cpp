// SPDX-License-Identifier: GPL-3.0-or-later
// Life of an instance and its move from host to host. Its other roles are in the NoxPlugIn…cpp
// files beside this one.
#include "plugin-model/NoxPlugIn.h"

#include "plugin-model/DspFlusher.h"
#include "plugin-model/DspIOConnectionController.h"
#include "plugin-model/INoxPlugInEnvironment.h"
#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/NoxSharcFlusher.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/QMSharcIOConnectionController.h"
#include "plugin-model/QMShellFlusher.h"

NoxPlugIn::NoxPlugIn(INoxPlugInType& type, INoxPlugInProcessingHost* host,
                     INoxPlugInEnvironment* environment)
    : host_(host)
    , environment_(environment)
    , type_(&type)
    , typeCode(type.typeCode())
    , inputs(static_cast<std::size_t>(type.inputCount()))
    , outputs(static_cast<std::size_t>(type.outputCount()))
    , displayName_(type.displayNameWithMaker())
    , shortName_(type.shortName())
    , description_(type.description()) {
    if (host_ != nullptr)
        sampleRate_ = host_->sampleRate();
    values_ = type.createParameterValues();
    if (values_ == nullptr) {
        for (std::int32_t i = 0; i < type.parameterCount(); ++i)
            defaultValues.push_back(type.defaultValue(i));
        return;
    }
    values_->setUndoHandler(this);
    values_->addListener(*this);
    announceSampleRate();
}

NoxPlugIn::~NoxPlugIn() {
    if (environment_ != nullptr)
        environment_->plugInGoingAway(*this);
    if (host_ != nullptr)
        host_->removePlugIn(this);
    detachFromHost();
    type_->forgetInstance(*this);
}

INoxPlugInTypeGroup* NoxPlugIn::group() const {
    return type_->group();
}

std::int32_t NoxPlugIn::hostKind() const {
    return host_ != nullptr ? host_->runtimeArchitecture() : 0;
}

void NoxPlugIn::setProcessingHost(INoxPlugInProcessingHost* host) {
    if (host != host_ || host_ == nullptr)
        ioConnectionController_.reset();
    if (host != host_)
        detachFromHost();
    host_ = host;
    if (host_ != nullptr && ioConnectionController_ == nullptr)
        setIOConnectionController(createIOConnectionController(host_->runtimeArchitecture()));
    if (values_ != nullptr)
        values_->setFlusher(host_ != nullptr ? createFlusher(host_->runtimeArchitecture())
                                             : nullptr);
    if (host_ != nullptr) {
        const double rate = host_->sampleRate();
        setSampleRate(&rate);
    }
    refresh(host_);
}

void NoxPlugIn::setSampleRate(const double* rate) {
    sampleRate_ = *rate;
    announceSampleRate();
}

void NoxPlugIn::announceSampleRate() {
    QM::QMParameterChanges changes;
    if (values_ != nullptr)
        values_->setSampleRate(sampleRate_, changes);
    if (environment_ == nullptr)
        return;
    environment_->sampleRateSet(*this, &sampleRate_);
    if (!changes.empty())
        environment_->parametersChanged(*this, changes.count(), changes.indices(), changes.values(),
                                        0);
}

std::unique_ptr<QMIOConnectionController>
NoxPlugIn::createIOConnectionController(NoxRuntimeArchitecture architecture) {
    constexpr std::int32_t inputCode = 1;
    constexpr std::int32_t outputCode = 2;
    constexpr std::int32_t transferCode = 3;
    switch (architecture) {
    case NoxArchitecture::sharc:
    case NoxArchitecture::sharcSecond:
        return std::make_unique<QMSharcIOConnectionController>(*this, inputCode, outputCode,
                                                               transferCode);
    case NoxArchitecture::dspMac:
    case NoxArchitecture::dsp3d:
    case NoxArchitecture::dspThird:
    case NoxArchitecture::native:
        return std::make_unique<DspIOConnectionController>(*this);
    default:
        return nullptr;
    }
}

void NoxPlugIn::setIOConnectionController(std::unique_ptr<QMIOConnectionController> controller) {
    ioConnectionController_ = std::move(controller);
}

QMIOConnectionController* NoxPlugIn::ioConnectionController() const {
    return ioConnectionController_.get();
}

std::unique_ptr<QMParameterValuesCoefficientFlusher>
NoxPlugIn::createFlusher(NoxRuntimeArchitecture architecture) {
    switch (architecture) {
    case NoxArchitecture::sharc:
    case NoxArchitecture::sharcSecond:
        return std::make_unique<NoxSharcFlusher>(this);
    case NoxArchitecture::dspMac:
    case NoxArchitecture::dsp3d:
    case NoxArchitecture::dspThird:
        return std::make_unique<DspFlusher>(this);
    case NoxArchitecture::native:
        return std::make_unique<QMShellFlusher>(this);
    case NoxArchitecture::nativeUndelivered:
        return std::make_unique<QMShellFlusher>(nullptr);
    default:
        return nullptr;
    }
}
