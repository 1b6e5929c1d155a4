// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings and records for the tests.

#include "brolt/signal/tests/BroltTestKit.h"

BroltParameters defaultParameters() {
    BroltParameters parameters;
    parameters.masterBypass = false;
    parameters.osc1Enable = true;
    parameters.osc1AttackFrequency = 100.0F;
    parameters.osc1SustainFrequency = 60.0F;
    parameters.osc1MixGain = 0.0F;
    parameters.osc2Enable = true;
    parameters.osc2AttackFrequency = 200.0F;
    parameters.osc2SustainFrequency = 120.0F;
    parameters.osc2MixGain = -12.0F;
    parameters.envelopeAttack = 2.0F;
    parameters.envelopeRelease = 140.0F;
    parameters.pitchAttack = 2.0F;
    parameters.pitchRelease = 140.0F;
    parameters.wetDry = 100.0F;
    parameters.outputGain = 0.0F;
    return parameters;
}

Coefficients recordOf(const BroltParameters& parameters, int32_t version) {
    Coefficients record;
    computeCoefficients(record, parameters);
    record.meterVersion = version;
    return record;
}

BroltParameters randomParameters(TestRandom& random) {
    BroltParameters parameters;
    parameters.masterBypass = random.oneIn(8);
    parameters.osc1Enable = !random.oneIn(8);
    parameters.osc1AttackFrequency = random.between(1.0F, 440.0F);
    parameters.osc1SustainFrequency = random.between(1.0F, 440.0F);
    parameters.osc1MixGain = random.between(-60.0F, 6.0F);
    parameters.osc2Enable = !random.oneIn(8);
    parameters.osc2AttackFrequency = random.between(1.0F, 22050.0F);
    parameters.osc2SustainFrequency = random.between(1.0F, 440.0F);
    parameters.osc2MixGain = random.between(-60.0F, 6.0F);
    parameters.envelopeAttack = random.between(0.01F, 100.0F);
    parameters.envelopeRelease = random.between(0.01F, 1000.0F);
    parameters.pitchAttack = random.between(0.01F, 100.0F);
    parameters.pitchRelease = random.between(0.01F, 1000.0F);
    parameters.wetDry = random.oneIn(4) ? 100.0F : random.between(0.0F, 100.0F);
    parameters.outputGain = random.oneIn(4) ? 0.0F : random.between(-24.0F, 24.0F);
    return parameters;
}

Coefficients simpleRecord() {
    Coefficients record;
    record.meterVersion = 1;
    record.peakDecay = 0.5F;
    record.envelopeMeterCoefficient = 0.5F;
    record.meanSquareCoefficient = 0.75F;
    record.levelAttack = 0.5F;
    record.levelRelease = 0.25F;
    record.pitchAttack = 0.25F;
    record.pitchRelease = 0.125F;
    return record;
}
