// SPDX-License-Identifier: GPL-3.0-or-later
//
// Something that runs an instance of the product over audio: what the render command knows of the
// form (plug-in model or plug-in interface) in which it drives the product.

#pragma once

#include <cstdint>

class ProcessorInsight;

/// One thread drives a renderer and plays the parts of control thread and audio thread in turn.
class Renderer {
public:
    Renderer() = default;
    virtual ~Renderer() = default;
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    /// Changes one parameter (by index, display units), as one change of its own. The next block
    /// works with it, or one of the blocks after it when there are many changes at once. Whatever
    /// the form, the value goes through the parameter's normalised range and is rounded there.
    virtual void setParameter(std::int32_t index, double value) = 0;

    /// Display units.
    [[nodiscard]] virtual double parameter(std::int32_t index) const = 0;

    /// Runs one block of at most the announced block size. An output may be its own input.
    virtual void process(float** inputs, float** outputs, std::int32_t frames) = 0;

    /// Does what a host does for its plug-ins beside processing. To be called directly after a
    /// block, now and then.
    virtual void betweenBlocks() {}

    /// Null in a form that does not show it.
    [[nodiscard]] virtual ProcessorInsight* insight() { return nullptr; }
};
