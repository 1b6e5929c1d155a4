// SPDX-License-Identifier: GPL-3.0-or-later
// Finds what a lasso can pick up: the selectable components directly on a panel. [message thread]
#pragma once

#include "widgets/base/QMSelectable.h"

#include <vector>

class QMSelectableLassoSource final : public juce::LassoSource<QMSelectable*> {
public:
    /// The panel must outlive it.
    explicit QMSelectableLassoSource(juce::Component& panelToSearch)
        : panel(panelToSearch) {}

    /// All there are, from the back to the front.
    [[nodiscard]] std::vector<QMSelectable*> selectables() const;

    /// Whether a lasso in the panel catches it: they overlap.
    [[nodiscard]] bool isHit(QMSelectable& selectable, const juce::Rectangle<int>& lasso) const;

    void findLassoItemsInArea(juce::Array<QMSelectable*>& itemsFound,
                              const juce::Rectangle<int>& area) override;

    juce::SelectedItemSet<QMSelectable*>& getLassoSelection() override { return selection; }

private:
    /// Tells the selected ones.
    struct Selection final : juce::SelectedItemSet<QMSelectable*> {
        void itemSelected(QMSelectable* item) override { item->setSelected(true); }

        void itemDeselected(QMSelectable* item) override { item->setSelected(false); }
    };

    juce::Component& panel;
    Selection selection;
};
