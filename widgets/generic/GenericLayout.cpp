// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericLayout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

using Layout = GenericLayout;

constexpr int narrowestEditor = 360;
constexpr int mostPreferredColumns = 7;
constexpr double columnsPerRow = 5.0 / 3.0;

int ceilDivide(int number, int by) {
    return (number + by - 1) / by;
}

int largestGroup(const GenericLayoutInput& input) {
    return input.groupSizes.empty()
               ? 0
               : *std::max_element(input.groupSizes.begin(), input.groupSizes.end());
}

int gridWidthOf(int columns, int cellWidth) {
    return columns * (cellWidth + Layout::gap) - Layout::gap;
}

/// As many as have room, but no more than the same number of rows needs: the last row of a group is
/// then filled as well as can be.
int columnsIn(int width, int cells) {
    const int room = std::max(1, (width + Layout::gap) / (Layout::narrowestCell + Layout::gap));
    return cells == 0 ? 1 : ceilDivide(cells, ceilDivide(cells, room));
}

class Grid {
public:
    Grid(const GenericLayoutInput& input, int gridWidth)
        : sizes(input.groupSizes)
        , width(gridWidth)
        , columns(columnsIn(gridWidth, largestGroup(input)))
        , cellWidth(std::clamp((gridWidth - Layout::gap * (columns - 1)) / columns, 1,
                               Layout::widestCell)) {}

    /// Returns where the grid ends.
    int placeInto(Layout& layout, int top) const {
        layout.columns = columns;
        int y = top;
        for (const int size : sizes) {
            if (sizes.size() > 1) {
                layout.headings.emplace_back(Layout::margin, y, width, Layout::headingHeight);
                y += Layout::headingHeight;
            }
            y = placeGroup(layout, size, y);
        }
        return y == top ? top : y - Layout::gap;
    }

private:
    int placeGroup(Layout& layout, int size, int top) const {
        for (int i = 0; i < size; ++i) {
            layout.cells.emplace_back(Layout::margin + i % columns * (cellWidth + Layout::gap),
                                      top + i / columns * (Layout::cellHeight + Layout::gap),
                                      cellWidth, Layout::cellHeight);
        }
        return top + ceilDivide(size, columns) * (Layout::cellHeight + Layout::gap);
    }

    const std::vector<int>& sizes;
    int width;
    int columns;
    int cellWidth;
};

} // namespace

GenericLayout layOutGenericEditor(const GenericLayoutInput& input) {
    GenericLayout layout;
    layout.title = {0, 0, input.width, Layout::titleHeight};
    const int top = Layout::titleHeight + Layout::margin;
    const int inner = std::max(1, input.width - 2 * Layout::margin);
    const bool hasPanel = input.panelWidth > 0;
    const int beside = inner - input.panelWidth - Layout::gap;
    const bool panelIsBeside = hasPanel && beside >= Layout::narrowestCell;

    // Without parameters a cell's height is kept for saying so.
    const int gridBottom =
        std::max(Grid(input, panelIsBeside ? beside : inner).placeInto(layout, top),
                 layout.cells.empty() ? top + Layout::cellHeight : top);
    int bottom = gridBottom;
    if (panelIsBeside) {
        const int height =
            std::max(input.panelHeight, std::min(gridBottom - top, Layout::highestPanel));
        layout.panel = {input.width - Layout::margin - input.panelWidth, top, input.panelWidth,
                        height};
        bottom = std::max(bottom, layout.panel.getBottom());
    } else if (hasPanel) {
        layout.panel = {Layout::margin, gridBottom + Layout::gap, std::min(inner, input.panelWidth),
                        input.panelHeight};
        bottom = layout.panel.getBottom();
    }
    layout.height = bottom + Layout::margin;
    return layout;
}

int preferredGenericWidth(const GenericLayoutInput& input) {
    const int cells = std::accumulate(input.groupSizes.begin(), input.groupSizes.end(), 0);
    const int columns = std::clamp(static_cast<int>(std::ceil(std::sqrt(cells * columnsPerRow))), 1,
                                   mostPreferredColumns);
    // A little more than the narrowest cell.
    const int grid = gridWidthOf(columns, Layout::narrowestCell + 4);
    const int panel = input.panelWidth > 0 ? input.panelWidth + Layout::gap : 0;
    return std::max(narrowestEditor, 2 * Layout::margin + grid + panel);
}
