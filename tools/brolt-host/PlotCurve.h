// SPDX-License-Identifier: GPL-3.0-or-later
//
// Curves over time.
//
// A curve is drawn column by column of the canvas: in each it covers the range of values that the
// line runs through there, widened by the pen. So a file of hours keeps its extremes, and a
// curve may fade from point to point without dark spots where its pieces meet.

#pragma once

#include "tools/brolt-host/PlotCanvas.h"

#include <vector>

/// In canvas units. Points of a curve come in order of `x`.
struct CurvePoint {
    double x;
    double y;
    double opacity = 1.0;
};

/// [message thread]
void drawCurve(PlotCanvas& canvas, const std::vector<CurvePoint>& points, double thickness,
               const Colour& colour);

/// Fills from the curve down to `bottom`. [message thread]
void fillBelowCurve(PlotCanvas& canvas, const std::vector<CurvePoint>& points, double bottom,
                    const Colour& colour, double opacity);
