// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PlotPanel.h"

namespace {

constexpr double hairline = 1.0;
constexpr double numberSize = 16.0;
constexpr double headingSize = 21.0;
constexpr double legendSize = 17.0;
constexpr double gap = 8.0;

} // namespace

PlotPanel::PlotPanel(PlotCanvas& panelCanvas, const PlotArea& panelArea, const PlotScale& timeAxis,
                     const PlotScale& valueAxis)
    : canvas(panelCanvas)
    , area_(panelArea)
    , time(timeAxis)
    , values(valueAxis) {}

double PlotPanel::xOf(double seconds) const {
    return area_.left + time.position(seconds) * (area_.right - area_.left);
}

double PlotPanel::yOf(double value) const {
    return area_.bottom - values.position(value) * (area_.bottom - area_.top);
}

CurvePoint PlotPanel::point(double seconds, double value, double opacity) const {
    return {xOf(seconds), yOf(value), opacity};
}

void PlotPanel::drawGrid(bool withTime) {
    canvas.fillRectangle(area_.left, area_.top, area_.right, area_.bottom, PlotColours::panel);
    for (const PlotTick& tick : values.ticks) {
        const double y = yOf(tick.value);
        const bool labelled = !tick.label.empty();
        canvas.fillRectangle(area_.left, y - hairline / 2, area_.right, y + hairline / 2,
                             labelled ? PlotColours::grid : PlotColours::faintGrid);
        if (labelled) {
            canvas.drawText(area_.left - gap, y - numberSize * 0.52, tick.label, numberSize,
                            PlotColours::text, TextAnchor::right);
        }
    }
    for (const PlotTick& tick : time.ticks) {
        const double x = xOf(tick.value);
        canvas.fillRectangle(x - hairline / 2, area_.top, x + hairline / 2, area_.bottom,
                             PlotColours::grid);
        if (withTime) {
            canvas.drawText(x, area_.bottom + gap, tick.label, numberSize, PlotColours::text,
                            TextAnchor::centre);
        }
    }
}

void PlotPanel::drawHeading(const std::string& heading, const std::vector<LegendEntry>& legend) {
    canvas.drawText(area_.left, area_.top - headingSize - gap, heading, headingSize,
                    PlotColours::heading);
    constexpr double swatchWidth = 26.0;
    constexpr double swatchHeight = 5.0;
    constexpr double entryGap = 26.0;
    const double top = area_.top - legendSize - gap;
    double right = area_.right;
    for (auto entry = legend.rbegin(); entry != legend.rend(); ++entry) {
        const double textLeft = right - canvas.textWidth(entry->text, legendSize);
        canvas.drawText(textLeft, top, entry->text, legendSize, PlotColours::text);
        const double swatchRight = textLeft - gap;
        const double middle = top + legendSize * 0.52;
        canvas.fillRectangle(swatchRight - swatchWidth, middle - swatchHeight / 2, swatchRight,
                             middle + swatchHeight / 2, entry->colour, entry->opacity);
        right = swatchRight - swatchWidth - entryGap;
    }
}

void PlotPanel::drawFrame() {
    const auto& [left, top, right, bottom] = area_;
    canvas.fillRectangle(left - hairline, top - hairline, right + hairline, top,
                         PlotColours::frame);
    canvas.fillRectangle(left - hairline, bottom, right + hairline, bottom + hairline,
                         PlotColours::frame);
    canvas.fillRectangle(left - hairline, top, left, bottom, PlotColours::frame);
    canvas.fillRectangle(right, top, right + hairline, bottom, PlotColours::frame);
}
