// SPDX-License-Identifier: GPL-3.0-or-later
//
// One of the diagrams that stand above each other in a plot: frame, grid, numbers, heading, legend,
// and the way from values to the canvas.

#pragma once

#include "tools/brolt-host/PlotCanvas.h"
#include "tools/brolt-host/PlotCurve.h"
#include "tools/brolt-host/PlotScale.h"

#include <string>
#include <vector>

/// In canvas units.
struct PlotArea {
    double left;
    double top;
    double right;
    double bottom;
};

struct LegendEntry {
    std::string text;
    Colour colour;
    double opacity = 1.0;
};

/// The colours all panels share.
namespace PlotColours {
constexpr Colour page{250, 250, 248};
constexpr Colour panel{255, 255, 255};
constexpr Colour frame{150, 154, 162};
constexpr Colour grid{228, 230, 234};
constexpr Colour faintGrid{241, 242, 244};
constexpr Colour heading{28, 32, 40};
constexpr Colour text{84, 90, 100};
} // namespace PlotColours

class PlotPanel {
public:
    /// The canvas must outlive the panel.
    PlotPanel(PlotCanvas& panelCanvas, const PlotArea& panelArea, const PlotScale& timeAxis,
              const PlotScale& valueAxis);

    /// Background and grid; the numbers of the time axis only when `withTime`. [message thread]
    void drawGrid(bool withTime);

    /// Heading at the left, legend at the right, both above the frame. [message thread]
    void drawHeading(const std::string& heading, const std::vector<LegendEntry>& legend);

    /// Goes over the curves, which may touch it. [message thread]
    void drawFrame();

    /// Where a value at a time is. [message thread]
    [[nodiscard]] CurvePoint point(double seconds, double value, double opacity = 1.0) const;

    [[nodiscard]] const PlotArea& area() const { return area_; }

private:
    [[nodiscard]] double xOf(double seconds) const;
    [[nodiscard]] double yOf(double value) const;

    PlotCanvas& canvas;
    PlotArea area_;
    PlotScale time;
    PlotScale values;
};
