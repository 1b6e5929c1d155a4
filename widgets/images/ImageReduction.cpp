// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/ImageReduction.h"

#include "widgets/images/AxisReduction.h"

#include <emmintrin.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

// Rows are averaged first, into a row of columns of sixteen bits: eight bits of colour and seven of
// fraction. Then columns are. One instruction multiplies eight such numbers and adds neighbours;
// neighbours are therefore what belongs to two rows, or to two columns, of one channel.
constexpr int fractionBits = 7;
constexpr int rowShift = AxisReduction::weightBits - fractionBits;
constexpr int columnShift = AxisReduction::weightBits + fractionBits;
constexpr int rowRounding = 1 << (rowShift - 1);
constexpr int columnRounding = 1 << (columnShift - 1);

using Pixels = juce::Image::BitmapData;
using Columns = std::vector<std::int16_t>;

/// Two weights, of even and of odd elements.
__m128i weightPair(const std::int16_t* weights) {
    int pair = 0;
    std::memcpy(&pair, weights, sizeof(pair));
    return _mm_set1_epi32(pair);
}

__m128i rounded(__m128i sum) {
    return _mm_srai_epi32(_mm_add_epi32(sum, _mm_set1_epi32(rowRounding)), rowShift);
}

class Reducer {
public:
    Reducer(const Pixels& sourcePixels, const Pixels& destinationPixels, double factorX,
            double factorY)
        : source(sourcePixels)
        , destination(destinationPixels)
        , horizontal(source.width, factorX)
        , vertical(source.height, factorY)
        , rowBytes(source.width * source.pixelStride)
        // One more pixel: a cover of an odd number may end beyond the row.
        , columns(static_cast<std::size_t>(rowBytes + source.pixelStride)) {}

    void run() {
        for (int y = 0; y < destination.height; ++y) {
            averageRows(vertical[y]);
            if (source.pixelStride == 4 && destination.pixelStride == 4)
                averageColumnsOfFour(destination.getLinePointer(y));
            else
                averageColumns(destination.getLinePointer(y));
        }
    }

private:
    /// A row of the cover, or the last there is where a weight of 0 stands for none.
    [[nodiscard]] const std::uint8_t* row(const AxisReduction::Cover& cover, std::size_t i) const {
        const int y = cover.first + static_cast<int>(i);
        return source.getLinePointer(std::min(y, source.height - 1));
    }

    void averageRows(const AxisReduction::Cover& cover) {
        rows.clear();
        for (std::size_t i = 0; i < cover.weights.size(); ++i)
            rows.push_back(row(cover, i));
        int x = 0;
        for (; x + 16 <= rowBytes; x += 16)
            averageSixteen(x, cover.weights.data());
        for (; x < rowBytes; ++x)
            averageOne(x, cover.weights.data());
    }

    void averageSixteen(int x, const std::int16_t* weights) {
        const __m128i zero = _mm_setzero_si128();
        __m128i sums[4] = {zero, zero, zero, zero};
        for (std::size_t i = 0; i < rows.size(); i += 2) {
            const __m128i pair = weightPair(weights + i);
            const __m128i upper = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[i] + x));
            const __m128i lower =
                _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[i + 1] + x));
            const __m128i left = _mm_unpacklo_epi8(upper, lower);
            const __m128i right = _mm_unpackhi_epi8(upper, lower);
            const auto add = [&](__m128i& sum, __m128i both) {
                sum = _mm_add_epi32(sum, _mm_madd_epi16(both, pair));
            };
            add(sums[0], _mm_unpacklo_epi8(left, zero));
            add(sums[1], _mm_unpackhi_epi8(left, zero));
            add(sums[2], _mm_unpacklo_epi8(right, zero));
            add(sums[3], _mm_unpackhi_epi8(right, zero));
        }
        auto* const out = reinterpret_cast<__m128i*>(columns.data() + x);
        _mm_storeu_si128(out, _mm_packs_epi32(rounded(sums[0]), rounded(sums[1])));
        _mm_storeu_si128(out + 1, _mm_packs_epi32(rounded(sums[2]), rounded(sums[3])));
    }

    void averageOne(int x, const std::int16_t* weights) {
        int sum = rowRounding;
        for (std::size_t i = 0; i < rows.size(); ++i)
            sum += rows[i][x] * weights[i];
        columns[static_cast<std::size_t>(x)] = static_cast<std::int16_t>(sum >> rowShift);
    }

    void averageColumnsOfFour(std::uint8_t* out) const {
        for (int x = 0; x < destination.width; ++x, out += 4) {
            const AxisReduction::Cover cover = horizontal[x];
            const std::int16_t* in = columns.data() + static_cast<std::ptrdiff_t>(cover.first) * 4;
            __m128i sum = _mm_set1_epi32(columnRounding);
            for (std::size_t i = 0; i < cover.weights.size(); i += 2, in += 8) {
                const __m128i two = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in));
                const __m128i both = _mm_unpacklo_epi16(two, _mm_unpackhi_epi64(two, two));
                const __m128i pair = weightPair(cover.weights.data() + i);
                sum = _mm_add_epi32(sum, _mm_madd_epi16(both, pair));
            }
            const __m128i words = _mm_packs_epi32(_mm_srai_epi32(sum, columnShift), sum);
            const int pixel = _mm_cvtsi128_si32(_mm_packus_epi16(words, words));
            std::memcpy(out, &pixel, sizeof(pixel));
        }
    }

    void averageColumns(std::uint8_t* out) const {
        const int channels = destination.pixelStride;
        for (int x = 0; x < destination.width; ++x) {
            const AxisReduction::Cover cover = horizontal[x];
            for (int channel = 0; channel < channels; ++channel)
                *out++ = averageColumn(cover, channel);
        }
    }

    [[nodiscard]] std::uint8_t averageColumn(const AxisReduction::Cover& cover, int channel) const {
        auto i = static_cast<std::size_t>(cover.first * source.pixelStride + channel);
        int sum = columnRounding;
        for (const std::int16_t weight : cover.weights) {
            sum += columns[i] * weight;
            i += static_cast<std::size_t>(source.pixelStride);
        }
        return static_cast<std::uint8_t>(sum >> columnShift);
    }

    const Pixels& source;
    const Pixels& destination;
    const AxisReduction horizontal;
    const AxisReduction vertical;
    const int rowBytes;
    std::vector<const std::uint8_t*> rows; ///< of the cover at hand
    Columns columns;
};

} // namespace

juce::Image reduceImage(const juce::Image& source, double factorX, double factorY) {
    if (source.isNull() || factorX >= 1.0 || factorY >= 1.0)
        return source;
    if (!(factorX > 0.0) || !(factorY > 0.0))
        return {};
    juce::Image reduced(source.getFormat(), reducedLength(source.getWidth(), factorX),
                        reducedLength(source.getHeight(), factorY), false);
    const Pixels from(source, Pixels::readOnly);
    const Pixels to(reduced, Pixels::writeOnly);
    Reducer(from, to, factorX, factorY).run();
    return reduced;
}

int reducedLength(int length, double factor) {
    return AxisReduction::reducedLength(length, factor);
}
