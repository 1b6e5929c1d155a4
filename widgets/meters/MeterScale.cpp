// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/meters/MeterScale.h"

#include <cmath>

namespace {

// Marks 4 dB apart, 6 dB between the lowest two; 4 is the line-up level, 18 dB below full scale.
MeterScale ukScale() {
    return {"UK PPM",
            {{-6, "7"}, {-10, "6"}, {-14, "5"}, {-18, "4"}, {-22, "3"}, {-26, "2"}, {-32, "1"}}};
}

MeterScale testScale() {
    return {"Test",
            {{0, "0"},
             {-10, "-10"},
             {-20, "-20"},
             {-30, "-30"},
             {-40, "-40"},
             {-50, "-50"},
             {-60, "-60"}}};
}

// The same instrument as the British one, marked in decibels around the line-up level. +9 is what
// programmes may reach.
MeterScale ebuScale() {
    return {"EBU PPM",
            {{-6, "+12"},
             {-8, ""},
             {-9, "+9"},
             {-10, "+8"},
             {-12, ""},
             {-14, "+4"},
             {-16, ""},
             {-18, "0"},
             {-20, ""},
             {-22, "-4"},
             {-24, ""},
             {-26, "-8"},
             {-28, ""},
             {-30, "-12"}}};
}

// American practice has 0 at 20 dB below full scale.
MeterScale ieeePeakScale() {
    return {"IEEE PPM",
            {{-8, "+12"},
             {-12, "+8"},
             {-16, "+4"},
             {-20, "0"},
             {-24, "-4"},
             {-28, "-8"},
             {-32, "-12"},
             {-36, "-16"}}};
}

MeterScale ieeeVolumeScale() {
    return {"IEEE VU",
            {{-17, "+3"},
             {-18, "+2"},
             {-19, "+1"},
             {-20, "0"},
             {-21, "-1"},
             {-22, "-2"},
             {-23, "-3"},
             {-25, "-5"},
             {-27, "-7"},
             {-30, "-10"},
             {-40, "-20"}}};
}

// 0 is the highest level that programmes may have, 9 dB below full scale.
MeterScale dinScale() {
    return {"DIN PPM",
            {{-4, "+5"},
             {-9, "0"},
             {-14, "-5"},
             {-19, "-10"},
             {-29, "-20"},
             {-39, "-30"},
             {-49, "-40"},
             {-59, "-50"}}};
}

MeterScale nordicScale() {
    return {"Nordic PPM",
            {{-6, "+12"},
             {-9, "+9"},
             {-12, "+6"},
             {-15, ""},
             {-18, "TEST"},
             {-21, ""},
             {-24, "-6"},
             {-27, ""},
             {-30, "-12"},
             {-36, "-18"},
             {-42, "-24"},
             {-48, "-30"},
             {-54, "-36"},
             {-60, "-42"}}};
}

MeterScale digitalScale() {
    MeterScale scale{"Digital PPM", {}};
    constexpr const char* everyFive[] = {"0", "-5", "-10", "-15", "-20"};
    for (int down = 0; down <= 20; ++down)
        scale.marks.push_back({-1.0 * down, down % 5 == 0 ? everyFive[down / 5] : ""});
    for (const MeterMark mark : {MeterMark{-25, "-25"},
                                 {-30, "-30"},
                                 {-35, "-35"},
                                 {-40, "-40"},
                                 {-50, "-50"},
                                 {-60, "-60"}})
        scale.marks.push_back(mark);
    return scale;
}

} // namespace

float MeterMark::level() const {
    return static_cast<float>(std::pow(10.0, decibels / 10.0));
}

const std::vector<MeterScale>& meterScales() {
    static const std::vector<MeterScale> scales{ukScale(),       testScale(),       ebuScale(),
                                                ieeePeakScale(), ieeeVolumeScale(), dinScale(),
                                                nordicScale(),   digitalScale()};
    return scales;
}
