// SPDX-License-Identifier: GPL-3.0-or-later
// What the generic editor shows: a control for each parameter, a display for each meter, laid out
// to any size. The content is given a description and never sees the plug-in; the editor that
// frames it connects its widgets. [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"
#include "plugin-model/NoxMeterRecord.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QMWidget;

/// A parameter as its control needs to know it; plain units.
struct GenericParameter {
    FourCharCode id = 0;
    juce::String name;
    juce::String unit;
    juce::String group; ///< empty where parameters are not grouped
    double minimum = 0.0;
    double maximum = 1.0;
    double defaultValue = 0.0;
    double value = 0.0;
    std::int32_t taper = 0; ///< NoxTaper
    double step = 0.0;
    juce::StringArray valueNames; ///< of minimum to maximum; empty for a number
    bool isBypass = false;
};

struct GenericMeter {
    juce::String name;
    FourCharCode id = 0;
    std::uint32_t kind = 0;                 ///< see NoxMeterDescriptor
    const NoxMeterRecord* record = nullptr; ///< refreshed before each tick; outlives the content
};

struct GenericEditorDescription {
    juce::String productName;
    std::vector<GenericParameter> parameters; ///< in the plug-in's order
    std::vector<GenericMeter> meters;
};

class IGenericEditorContent {
public:
    virtual ~IGenericEditorContent() = default;

    /// Lays itself out in whatever size it is given.
    [[nodiscard]] virtual juce::Component& component() = 0;

    /// Every widget with a parameter in one of its slots, readouts too, in tab order. They are
    /// bound (setParameter), know their ranges and show their values. The same ones as long as the
    /// content lives.
    [[nodiscard]] virtual std::vector<QMWidget*> parameterWidgets() = 0;

    /// Every widget that is an IQMDisplayWidget, its records bound. The same ones as long as the
    /// content lives.
    [[nodiscard]] virtual std::vector<QMWidget*> displayWidgets() = 0;

    /// Pixels per design unit, 0.4 to 2.5.
    virtual void setMagnification(float factor) = 0;

    /// The size it looks best in, in design units, from 0, 0.
    [[nodiscard]] virtual juce::Rectangle<int> preferredSize() const = 0;

    /// The height that a width takes at the current magnification; pixels both.
    [[nodiscard]] virtual int heightFor(int width) const = 0;
};

using GenericEditorContentFactory =
    std::function<std::unique_ptr<IGenericEditorContent>(const GenericEditorDescription&)>;
