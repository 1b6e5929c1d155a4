// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/appearance/BackgroundGradient.h"

#include "widgets/ui/appearance/AppearanceLimits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

/// Grey levels are counted in 256ths here.
constexpr int level = 256;
constexpr int white = 255 * level;

/// How much of the way to white a highlight goes, counted in 4096ths.
constexpr int fullLift = 4096;

using Channels = std::array<int, 3>; ///< red, green, blue in 256ths of a level

constexpr int reversedBits(int ofEight) {
    return ((ofEight & 1) << 2) | (ofEight & 2) | ((ofEight >> 2) & 1);
}

/// Which part of a level has to be there for the next level at this pixel. 64 different ones in
/// every square of eight pixels, and eight that are evenly spread in each row and column of it, so
/// that every row has the mean it should have.
constexpr int threshold(int x, int y) {
    const int order = reversedBits((x + 3 * y) % 8) * 8 + reversedBits(y % 8);
    return order * (level / 64);
}

using Thresholds = std::array<std::array<int, 8>, 8>;

constexpr Thresholds makeThresholds() {
    Thresholds made{};
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x)
            made[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = threshold(x, y);
    }
    return made;
}

constexpr Thresholds thresholds = makeThresholds();

double bell(double distance, double width) {
    return std::exp(-(distance * distance) / (width * width));
}

/// Light on the panel: an edge along its top, and broad streaks across it that lean to the left
/// and fade on their way down.
class Highlights {
public:
    Highlights(int width, int height) {
        const int reach = width + shiftOfRow(height);
        streaks.reserve(static_cast<std::size_t>(reach));
        for (int across = 0; across < reach; ++across)
            streaks.push_back(lift(streak(across / static_cast<double>(reach))));
        for (int y = 0; y < height; ++y) {
            const double down = y / static_cast<double>(height);
            edges.push_back(lift(edge(down)));
            fades.push_back(lift(1.0 - 0.7 * down));
        }
    }

    [[nodiscard]] int at(int x, int y) const {
        const auto row = static_cast<std::size_t>(y);
        return edges[row] +
               streaks[static_cast<std::size_t>(x + shiftOfRow(y))] * fades[row] / fullLift;
    }

private:
    static int lift(double part) { return static_cast<int>(std::lround(part * fullLift)); }

    static int shiftOfRow(int y) { return y * 2 / 5; }

    static double streak(double across) {
        return 0.105 * bell(across - 0.30, 0.11) + 0.045 * bell(across - 0.42, 0.035) +
               0.060 * bell(across - 0.76, 0.13);
    }

    static double edge(double down) {
        return 0.20 * bell(down, 0.0025) + 0.05 * std::exp(-down / 0.04);
    }

    std::vector<int> streaks;
    std::vector<int> edges;
    std::vector<int> fades;
};

Channels channelsOf(juce::Colour colour) {
    return {colour.getRed() * level, colour.getGreen() * level, colour.getBlue() * level};
}

Channels between(const Channels& first, const Channels& last, int row, int rows) {
    Channels mixed = first;
    if (rows > 1) {
        for (std::size_t i = 0; i < mixed.size(); ++i)
            mixed[i] += static_cast<int>(std::int64_t{last[i] - first[i]} * row / (rows - 1));
    }
    return mixed;
}

/// The level that a pixel with this threshold gets.
std::uint8_t levelOf(int channel, int lift, int enough) {
    const int lifted = channel + (white - channel) * lift / fullLift;
    return static_cast<std::uint8_t>((lifted + enough) / level);
}

} // namespace

juce::Image BackgroundGradient::image(int width, int height) const {
    juce::Image made(juce::Image::RGB, std::max(1, width), std::max(1, height), false,
                     juce::SoftwareImageType());
    const juce::Image::BitmapData pixels(made, juce::Image::BitmapData::writeOnly);
    const Highlights highlights(hasHighlights ? pixels.width : 0,
                                hasHighlights ? pixels.height : 0);
    const Channels first = channelsOf(top);
    const Channels last = channelsOf(bottom);
    for (int y = 0; y < pixels.height; ++y) {
        const Channels row = between(first, last, y, pixels.height);
        const auto& enough = thresholds[static_cast<std::size_t>(y % 8)];
        for (int x = 0; x < pixels.width; ++x) {
            const int lift = hasHighlights ? highlights.at(x, y) : 0;
            const int here = enough[static_cast<std::size_t>(x % 8)];
            reinterpret_cast<juce::PixelRGB*>(pixels.getPixelPointer(x, y))
                ->setARGB(255, levelOf(row[0], lift, here), levelOf(row[1], lift, here),
                          levelOf(row[2], lift, here));
        }
    }
    return made;
}

juce::Colour BackgroundGradient::atBrightness(juce::Colour base, float brightness) {
    const float amount = AppearanceLimits::limited(brightness, AppearanceLimits::brightness);
    const float target = amount < 0.0F ? 0.0F : 255.0F;
    const auto mixed = [&](std::uint8_t channel) {
        const float from = channel;
        return static_cast<std::uint8_t>(std::lround(from + (target - from) * std::abs(amount)));
    };
    return {mixed(base.getRed()), mixed(base.getGreen()), mixed(base.getBlue())};
}
