// SPDX-License-Identifier: GPL-3.0-or-later
// The static description of one parameter. A product writes one table of these; everything else
// (ranges, tapers, texts, identifiers, what hosts publish) is answered from it.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstddef>
#include <cstdint>

class INoxPlugIn;

/// How a parameter's plain range maps onto the normalised range 0..1.
namespace NoxTaper {
constexpr std::int32_t linear = 0;
constexpr std::int32_t logarithmic = 1;
constexpr std::int32_t stepped = 2;              ///< switches and lists: whole numbers only
constexpr std::int32_t stretchedLogarithmic = 3; ///< logarithmic over a 1000-fold range
} // namespace NoxTaper

/// Unit classes, in the numbering that Audio Units use for theirs.
namespace NoxUnitCode {
constexpr std::uint32_t boolean = 2;
constexpr std::uint32_t percent = 3;
constexpr std::uint32_t hertz = 8;
constexpr std::uint32_t decibels = 13;
constexpr std::uint32_t milliseconds = 24;
} // namespace NoxUnitCode

struct NoxPlugInParameter {
    /// Writes the text of a plain value into a buffer of size bytes, cut to fit. [any thread]
    using FormatFunction = void (*)(const NoxPlugInParameter& parameter, double value, char* buffer,
                                    std::size_t size);
    /// Called for an instance without a values object when it refreshes: (instance, option1,
    /// parameter index).
    using ChangeHook = void (*)(INoxPlugIn& instance, std::uint32_t option, std::int32_t index);

    const char* name;
    const char* const* valueNames; ///< names of the values minimum..maximum of a switch, or null
    const char* unit;              ///< empty for switches
    FormatFunction formatValue;    ///< text without unit, or null
    FormatFunction formatValueWithUnit; ///< text with unit, or null
    double minimum;                     ///< plain units, as maximum, default and step
    double maximum;
    double defaultValue;
    std::int32_t taper; ///< NoxTaper
    double step;        ///< quantum of linear and stepped parameters
    double factor;
    FourCharCode id;
    std::uint32_t groupIndex;
    std::uint32_t subgroupIndex;
    ChangeHook changeHook;
    std::uint32_t option1; ///< argument of changeHook
    std::uint8_t option2;
    std::uint32_t unitCode;     ///< NoxUnitCode
    std::uint64_t reservedWord; ///< answered by an accessor, otherwise without meaning
    double curve;               ///< carried for host adapters, not used in the taper
    std::uint8_t option3;
};

/// A group of parameters and its subgroups.
struct NoxParameterGroup {
    const char* name;
    std::uint32_t subgroupCount;
    const char* const* subgroupNames;
};

/// Names one meter record of the instances of a type.
struct NoxMeterDescriptor {
    const char* name;
    FourCharCode id;
    std::uint32_t channel;
    std::uint32_t kind; ///< 1 level of an output channel, 6 oscillator pitches
};
