// SPDX-License-Identifier: GPL-3.0-or-later
//
// The processor once more, as its formulas read: sample by sample, stage after stage over the whole
// block, on a state image of numbered bytes.
//
// It exists to disagree. It shares no code and no declaration with the processor that is shipped,
// so a slip in a layout, a formula or an order shows as a difference in some bit. Speed and
// elegance are nobody's concern here.

#pragma once

#include <cstdint>
#include <vector>

class ReferenceBrolt {
public:
    static constexpr int recordBytes = 72;

    /// 1 or 2 channels; the state is initialised.
    explicit ReferenceBrolt(int channelCount);

    void initialise();

    /// `record` is the image of a coefficient record.
    void process(const float* const* inputs, float* const* outputs, const void* record,
                 int32_t frameCount);

    void reset();
    void resetMeters();

    /// As from outside.
    void requestSnapshot(int32_t request);
    void setReal(int byteOffset, float value);

    std::vector<float> snapshot() const;

    /// 176 or 216 bytes.
    const std::vector<unsigned char>& image() const { return state; }

    /// True for the 4-byte words of the image that hold floats.
    bool holdsFloat(int byteOffset) const;

private:
    float real(int byteOffset) const;
    int32_t integer(int byteOffset) const;
    void setInteger(int byteOffset, int32_t value);

    void processFlushed(const float* const* inputs, float* const* outputs, const void* record,
                        int32_t frameCount);
    std::vector<float> runDetector(int at, const std::vector<float>& input, float attack,
                                   float release);
    std::vector<float> runOscillator(int at, const std::vector<float>& pitch, float attackT,
                                     float sustainT, float& lastS);
    void runMeter(int at, const float* samples, int32_t frameCount);

    int channels;
    int requestAt;
    int servedAt;
    int snapshotAt;
    int firstBlockAt;
    int poleAt;
    int stepAt;
    std::vector<unsigned char> state;
};
