// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMSelectableLassoSource.h"

std::vector<QMSelectable*> QMSelectableLassoSource::selectables() const {
    std::vector<QMSelectable*> found;
    for (juce::Component* const child : panel.getChildren()) {
        auto* const selectable = dynamic_cast<QMSelectable*>(child);
        if (selectable != nullptr && selectable->isSelectable())
            found.push_back(selectable);
    }
    return found;
}

bool QMSelectableLassoSource::isHit(QMSelectable& selectable,
                                    const juce::Rectangle<int>& lasso) const {
    const juce::Component& component = *selectable.getComponent();
    return panel.getLocalArea(&component, component.getLocalBounds()).intersects(lasso);
}

void QMSelectableLassoSource::findLassoItemsInArea(juce::Array<QMSelectable*>& itemsFound,
                                                   const juce::Rectangle<int>& area) {
    for (QMSelectable* const selectable : selectables()) {
        if (isHit(*selectable, area))
            itemsFound.add(selectable);
    }
}
