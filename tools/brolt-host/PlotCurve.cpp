// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PlotCurve.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double columnWidth = 1.0 / PlotCanvas::oversampling;

struct Column {
    double left;
    double top;
    double bottom;
    double opacity;
};

CurvePoint between(const CurvePoint& a, const CurvePoint& b, double x) {
    const double part = b.x > a.x ? (x - a.x) / (b.x - a.x) : 0.0;
    return {x, a.y + part * (b.y - a.y), a.opacity + part * (b.opacity - a.opacity)};
}

/// Walks along a curve and sums up what it does in one column after the other.
template <typename Visit>
void visitColumns(const std::vector<CurvePoint>& points, const Visit& visit) {
    if (points.empty())
        return;
    const double begin = std::floor(points.front().x / columnWidth) * columnWidth;
    const auto count = static_cast<long>(std::ceil((points.back().x - begin) / columnWidth - 1e-6));
    std::size_t next = 1; // the first point behind the column's left edge
    for (long i = 0; i < std::max(count, 1L); ++i) {
        const double left = begin + static_cast<double>(i) * columnWidth;
        const double right = left + columnWidth;
        Column column{left, 1e9, -1e9, 0.0};
        const auto cover = [&](const CurvePoint& point) {
            column.top = std::min(column.top, point.y);
            column.bottom = std::max(column.bottom, point.y);
            column.opacity = std::max(column.opacity, point.opacity);
        };
        while (next < points.size() && points[next].x < left)
            ++next;
        const CurvePoint& before = points[next - 1];
        cover(next < points.size() && before.x < left ? between(before, points[next], left)
                                                      : before);
        std::size_t inside = next;
        for (; inside < points.size() && points[inside].x <= right; ++inside)
            cover(points[inside]);
        if (inside < points.size() && points[inside - 1].x < right)
            cover(between(points[inside - 1], points[inside], right));
        visit(column);
    }
}

} // namespace

void drawCurve(PlotCanvas& canvas, const std::vector<CurvePoint>& points, double thickness,
               const Colour& colour) {
    std::vector<Column> columns;
    visitColumns(points, [&](const Column& column) { columns.push_back(column); });

    // As a round pen leaves it: each column takes over what the pen reaches from its neighbours.
    const double radius = thickness / 2.0;
    const auto reach = static_cast<std::ptrdiff_t>(radius / columnWidth);
    const auto count = static_cast<std::ptrdiff_t>(columns.size());
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        Column covered = columns[static_cast<std::size_t>(i)];
        double top = covered.top;
        double bottom = covered.bottom;
        for (std::ptrdiff_t j = std::max<std::ptrdiff_t>(i - reach, 0);
             j < std::min(i + reach + 1, count); ++j) {
            const Column& other = columns[static_cast<std::size_t>(j)];
            const double distance = static_cast<double>(i - j) * columnWidth;
            const double height = std::sqrt(radius * radius - distance * distance);
            top = std::min(top, other.top - height);
            bottom = std::max(bottom, other.bottom + height);
            covered.opacity = std::max(covered.opacity, other.opacity);
        }
        canvas.fillRectangle(covered.left, top, covered.left + columnWidth, bottom, colour,
                             covered.opacity);
    }
}

void fillBelowCurve(PlotCanvas& canvas, const std::vector<CurvePoint>& points, double bottom,
                    const Colour& colour, double opacity) {
    visitColumns(points, [&](const Column& column) {
        if (column.top < bottom)
            canvas.fillRectangle(column.left, column.top, column.left + columnWidth, bottom, colour,
                                 opacity);
    });
}
