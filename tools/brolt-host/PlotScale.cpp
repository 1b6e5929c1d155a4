// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PlotScale.h"

#include "plugin-model/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::array<int, 3> niceDigits{1, 2, 5};

/// The smallest of 1, 2, 5 times a power of ten that is not below.
double niceStep(double atLeast) {
    const double decade = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const int digit : niceDigits) {
        if (digit * decade >= atLeast)
            return digit * decade;
    }
    return 10.0 * decade;
}

/// The nearest of 1, 2, … 9 times a power of ten that is not above, or not below.
double wholeDigitBelow(double value) {
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    return std::floor(value / decade) * decade;
}

double wholeDigitAbove(double value) {
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    return std::ceil(value / decade) * decade;
}

/// An axis of a decade or less has room for more numbers.
bool isLabelled(int digit, double ratio) {
    constexpr double decade = 10.0;
    constexpr int crowded = 7;
    if (ratio <= decade)
        return digit < crowded || digit == crowded + 1;
    return std::find(niceDigits.begin(), niceDigits.end(), digit) != niceDigits.end();
}

/// Seconds as they are, longer times as minutes and seconds.
std::string timeLabel(double seconds, bool inMinutes) {
    if (!inMinutes)
        return QM::numberText(seconds, 4);
    constexpr long secondsPerMinute = 60;
    const long whole = std::lround(seconds);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%ld:%02ld", whole / secondsPerMinute,
                  whole % secondsPerMinute);
    return text.data();
}

double timeStep(double seconds) {
    constexpr double wantedMarks = 12.0;
    const double atLeast = seconds / wantedMarks;
    for (const double step : {10.0, 15.0, 30.0, 60.0, 120.0, 300.0, 600.0, 1800.0, 3600.0}) {
        if (atLeast > 5.0 && step >= atLeast)
            return step;
    }
    return niceStep(atLeast);
}

} // namespace

double PlotScale::position(double value) const {
    const double place = logarithmic ? std::log(value / minimum) / std::log(maximum / minimum)
                                     : (value - minimum) / (maximum - minimum);
    return place > 0.0 ? std::min(place, 1.0) : 0.0;
}

PlotScale timeScale(double seconds) {
    constexpr double longestInSeconds = 120.0;
    PlotScale scale{0.0, seconds, false, {}};
    const double step = timeStep(seconds);
    for (int i = 0; i * step <= seconds * (1.0 + 1e-9); ++i)
        scale.ticks.push_back({i * step, timeLabel(i * step, seconds > longestInSeconds)});
    return scale;
}

PlotScale frequencyScale(double lowest, double highest) {
    const double bottom = wholeDigitBelow(lowest);
    const double top = std::max(wholeDigitAbove(highest), 2.0 * bottom);
    PlotScale scale{bottom, top, true, {}};
    constexpr double tolerance = 1e-9;
    constexpr int digits = 9;
    const int firstDecade = static_cast<int>(std::floor(std::log10(bottom * (1.0 + tolerance))));
    for (int mark = 0;; ++mark) {
        const int digit = 1 + mark % digits;
        const double value = digit * std::pow(10.0, firstDecade + mark / digits);
        if (value > top * (1.0 + tolerance))
            return scale;
        if (value < bottom * (1.0 - tolerance))
            continue;
        scale.ticks.push_back(
            {value, isLabelled(digit, top / bottom) ? QM::numberText(value) : ""});
    }
}

PlotScale levelScale(double floor, double highest) {
    constexpr double step = 12.0;
    constexpr double half = step / 2.0;
    const double top =
        std::isfinite(highest) ? std::max(std::ceil(highest / half) * half, 0.0) : 0.0;
    PlotScale scale{floor, top, false, {}};
    for (int i = static_cast<int>(std::ceil(floor / step)); i * step <= top; ++i) {
        const double value = i * step;
        scale.ticks.push_back({value, (value > 0.0 ? "+" : "") + QM::numberText(value)});
    }
    return scale;
}
