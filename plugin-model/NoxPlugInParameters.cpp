// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's parameters: the values object answers and changes, the environment is told.
#include "plugin-model/NoxPlugIn.h"

#include "plugin-model/INoxPlugInEnvironment.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/QMParameterValues.h"
#include "services/Log.h"

QM::IQMParameterValues* NoxPlugIn::parameterValues() const {
    return values_.get();
}

const QM::IQMParameterSet* NoxPlugIn::parameterSet() const {
    return type_->parameterSet();
}

bool NoxPlugIn::isParameterIndex(std::int32_t index) const {
    return index >= 0 && index < parameterCount();
}

bool NoxPlugIn::isBypassParameterIndex(std::int32_t index) const {
    return index >= 0 && index == type_->bypassParameterIndex();
}

double NoxPlugIn::parameterValue(std::int32_t index) const {
    if (values_ != nullptr)
        return values_->getValue(index);
    const bool known = index >= 0 && static_cast<std::size_t>(index) < defaultValues.size();
    return known ? defaultValues[static_cast<std::size_t>(index)] : 0.0;
}

double NoxPlugIn::normalisedValue(std::int32_t index) const {
    const QM::IQMParameterSet* set = parameterSet();
    return set != nullptr ? set->plainToNormalised(index, parameterValue(index)) : 0.0;
}

template <typename Change>
void NoxPlugIn::changeParameter(std::int32_t index, Change change) {
    if (!isParameterIndex(index)) {
        QM::log(QM::LogLevel::error, "Error: got unexpected parameter index: %d\n", index);
        return;
    }
    if (values_ == nullptr)
        return;
    const double before = values_->getValue(index);
    change(*values_);
    const double after = values_->getValue(index);
    if (environment_ != nullptr && after != before)
        environment_->parameterChanged(*this, index, after, 0);
}

void NoxPlugIn::setParameterValue(std::int32_t index, double value,
                                  QM::QMParameterChanges* changes) {
    changeParameter(index, [&](QM::QMParameterValues& values) {
        values.setParameterValue(index, value, changes);
    });
}

void NoxPlugIn::setNormalisedValue(std::int32_t index, double normalised) {
    const QM::IQMParameterSet* set = parameterSet();
    if (set != nullptr)
        setParameterValue(index, set->normalisedToPlain(index, normalised));
}

void NoxPlugIn::storeAndFlush(std::int32_t index, double value) {
    changeParameter(index,
                    [&](QM::QMParameterValues& values) { values.storeAndFlush(index, value); });
}

void NoxPlugIn::beginAccumulate() {
    if (values_ != nullptr)
        values_->beginAccumulate();
}

void NoxPlugIn::endAccumulate() {
    if (values_ != nullptr)
        values_->endAccumulate();
}

void NoxPlugIn::beginTouch(std::int32_t index) {
    if (values_ != nullptr)
        values_->beginTouch(index);
}

void NoxPlugIn::endTouch(std::int32_t index) {
    if (values_ != nullptr)
        values_->endTouch(index);
}

bool NoxPlugIn::isTouched(std::int32_t index) const {
    return values_ != nullptr && values_->isTouched(index);
}

void NoxPlugIn::touchStarted(QM::IQMParameterValues&, std::int32_t index) {
    if (environment_ != nullptr)
        environment_->parameterTouched(*this, index);
}

void NoxPlugIn::touchEnded(QM::IQMParameterValues&, std::int32_t index) {
    if (environment_ != nullptr)
        environment_->parameterReleased(*this, index);
}

bool NoxPlugIn::testChangedFlag(std::int32_t index) const {
    return values_ != nullptr && values_->testChangedFlag(index);
}

void NoxPlugIn::clearChangedFlag(std::int32_t index) {
    if (values_ != nullptr)
        values_->clearChangedFlag(index);
}

void NoxPlugIn::refresh(const void* argument) {
    if (argument != nullptr)
        fullRefresh();
}

void NoxPlugIn::fullRefresh() {
    allocateAnalysisBuffer();
    if (values_ != nullptr)
        values_->restoreAllAndFlush();
    else
        refreshWithoutValues();
}

void NoxPlugIn::refreshWithoutValues() {
    beginAccumulate();
    const double rate = sampleRate_;
    setSampleRate(&rate);
    if (const QM::IQMParameterSet* set = parameterSet()) {
        for (std::int32_t i = 0; i < set->parameterCount(); ++i) {
            if (const auto hook = set->changeHook(i))
                hook(*this, set->option1(i), i);
        }
    }
    endAccumulate();
}

void NoxPlugIn::generatePackets(PacketList& packets) {
    if (values_ != nullptr)
        values_->generatePackets(packets);
}

void NoxPlugIn::releasePackets(PacketList& packets) {
    if (values_ != nullptr)
        values_->releasePackets(packets);
}

void NoxPlugIn::logParameterValues() const {
    if (values_ != nullptr)
        values_->logValues();
}

void NoxPlugIn::dumpDefaultsTable(const char* name) const {
    if (values_ != nullptr)
        values_->dumpDefaultsTable(name, nullptr);
}
