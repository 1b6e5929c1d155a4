// SPDX-License-Identifier: GPL-3.0-or-later
//
// A picture to draw on, in the units of the finished picture's pixels, fractions included. It is
// kept several times as large and reduced at the end, which smooths every edge.

#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

using Colour = std::array<std::uint8_t, 3>; ///< red, green, blue

enum class TextAnchor {
    left,
    centre,
    right,
};

class PlotCanvas {
public:
    /// Columns and rows drawn for each of the finished picture.
    static constexpr int oversampling = 3;

    /// Throws std::bad_alloc or CImg's exception without memory.
    PlotCanvas(int width, int height, const Colour& background);
    ~PlotCanvas();

    PlotCanvas(const PlotCanvas&) = delete;
    PlotCanvas& operator=(const PlotCanvas&) = delete;

    [[nodiscard]] int width() const { return width_; }

    [[nodiscard]] int height() const { return height_; }

    /// Opacity 0..1. Edges lie on a grid of 1 / oversampling; a rectangle is at least one step of
    /// it wide and high. [message thread]
    void fillRectangle(double left, double top, double right, double bottom, const Colour& colour,
                       double opacity = 1.0);

    /// One line of text with its top at `y`; characters other than ASCII become question marks.
    /// `size` is the height of a line. [message thread]
    void drawText(double x, double y, const std::string& text, double size, const Colour& colour,
                  TextAnchor anchor = TextAnchor::left);

    /// [message thread]
    [[nodiscard]] double textWidth(const std::string& text, double size) const;

    /// The finished picture: rows from the top, three bytes a pixel. [message thread]
    [[nodiscard]] std::vector<std::uint8_t> pixels() const;

private:
    struct Image;

    int width_;
    int height_;
    std::unique_ptr<Image> image;
};
