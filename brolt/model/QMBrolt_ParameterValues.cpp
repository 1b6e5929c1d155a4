// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_ParameterValues.h"

#include "brolt/signal/CoefficientComputation.h"
#include "plugin-model/AccumulateBracket.h"

#include <cstring>

namespace QM {
namespace {

/// The values as the processor's arithmetic takes them: switches are on unless exactly 0, the rest
/// is single precision.
BroltParameters plainParameters(const IQMParameterValues& values) {
    const auto isOn = [&](const char(&id)[5]) {
        return values.getValueByID(fourCharCode(id)) != 0.0;
    };
    const auto number = [&](const char(&id)[5]) {
        return static_cast<float>(values.getValueByID(fourCharCode(id)));
    };
    BroltParameters plain;
    plain.masterBypass = isOn("mbyp");
    plain.osc1Enable = isOn("osc1");
    plain.osc1AttackFrequency = number("afre");
    plain.osc1SustainFrequency = number("sfre");
    plain.osc1MixGain = number("mgan");
    plain.osc2Enable = isOn("osc2");
    plain.osc2AttackFrequency = number("dafr");
    plain.osc2SustainFrequency = number("dsfr");
    plain.osc2MixGain = number("dmgn");
    plain.envelopeAttack = number("attk");
    plain.envelopeRelease = number("rlse");
    plain.pitchAttack = number("patt");
    plain.pitchRelease = number("prls");
    plain.wetDry = number("wetd");
    plain.outputGain = number("gain");
    return plain;
}

} // namespace

QMBrolt_ParameterValues::QMBrolt_ParameterValues(IQMParameterSet& parameterSet, double sampleRate,
                                                 FourCharCode manufacturerCode,
                                                 FourCharCode productCode, std::int32_t typeIndex)
    : QMParameterValues(parameterSet, sampleRate)
    , manufacturer(manufacturerCode)
    , product(productCode)
    , type(typeIndex) {
    constexpr std::int32_t snapshotsAAndB = 2;
    setSnapshotCount(snapshotsAAndB);
}

void QMBrolt_ParameterValues::setParameterValue(std::int32_t index, double value,
                                                QMParameterChanges* changes) {
    if (index < 0)
        return;
    const FourCharCode id = parameterSet().idOfIndex(index);
    AccumulateBracket bracket(*this);
    QMParameterValues::setParameterValue(parameterSet().indexOfID(id), value, changes);
    bracket.close();
}

void QMBrolt_ParameterValues::generatePackets(PacketList& packets) {
    releasePackets(packets);
    Coefficients record;
    computeCoefficients(record, plainParameters(*this));
    record.meterVersion = nextCoefficientVersion();
    auto packet = std::make_unique<Packet>(Packet::coefficientKind, sizeof record);
    std::memcpy(packet->data, &record, sizeof record);
    packets.push_back(std::move(packet));
}

} // namespace QM
