// SPDX-License-Identifier: GPL-3.0-or-later
// The generic editor's content: a bar with the product's name, a cell for each parameter, group by
// group, and the meters. It is told what there is and never sees the plug-in, so that it needs
// neither a lock nor an instance. [message thread]
#pragma once

#include "widgets/base/QMTabContainer.h"
#include "widgets/generic/GenericLayout.h"
#include "widgets/generic/GenericMeterPanel.h"
#include "widgets/generic/GenericParameterCell.h"
#include "widgets/ui/IGenericEditorContent.h"

#include <memory>
#include <vector>

class GenericEditorContent final : public QMTabContainer, public IGenericEditorContent {
public:
    static constexpr float smallestMagnification = 0.4f;
    static constexpr float largestMagnification = 2.5f;

    explicit GenericEditorContent(const GenericEditorDescription& description);
    ~GenericEditorContent() override;

    [[nodiscard]] juce::Component& component() override { return *this; }

    [[nodiscard]] std::vector<QMWidget*> parameterWidgets() override;
    [[nodiscard]] std::vector<QMWidget*> displayWidgets() override;
    /// Limited to what it can be.
    void setMagnification(float factor) override;

    [[nodiscard]] float getMagnification() const { return magnification; }

    [[nodiscard]] juce::Rectangle<int> preferredSize() const override;
    [[nodiscard]] int heightFor(int width) const override;

    /// In the order of the keyboard, row by row.
    [[nodiscard]] const std::vector<std::unique_ptr<GenericParameterCell>>& getCells() const {
        return cells;
    }

    /// Of the present width, in design units.
    [[nodiscard]] const GenericLayout& getLayout() const { return layout; }

    void paint(juce::Graphics& g) override;
    void resized() override;

private:
    struct Group {
        juce::String name;
        std::vector<const GenericParameter*> parameters;
    };

    /// Groups in the order in which they first come, each with its parameters in the plug-in's.
    [[nodiscard]] static std::vector<Group>
    groupsOf(const std::vector<GenericParameter>& parameters);
    void addCells(const std::vector<Group>& groups);
    [[nodiscard]] int designWidthOf(int width) const;
    [[nodiscard]] GenericLayoutInput layoutInput(int designWidth) const;
    void drawTitle(juce::Graphics& g) const;
    void drawHeadings(juce::Graphics& g) const;

    juce::String productName;
    std::vector<juce::String> groupNames;
    std::vector<int> groupSizes;
    std::vector<std::unique_ptr<GenericParameterCell>> cells;
    GenericMeterPanel meterPanel;
    GenericLayout layout;
    float magnification = 1.0f;
};

/// For whoever frames it.
[[nodiscard]] std::unique_ptr<IGenericEditorContent>
makeGenericEditorContent(const GenericEditorDescription& description);
