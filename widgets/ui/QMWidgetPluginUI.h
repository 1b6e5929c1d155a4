// SPDX-License-Identifier: GPL-3.0-or-later
// An editor built from tables: which widgets there are, where they stand, what explains them. One
// widget for each area of the layout table. [message thread]
#pragma once

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/ui/QMPlugInUI.h"

#include <map>
#include <memory>
#include <span>
#include <vector>

class QMWidgetPluginUI : public QMPlugInUI {
public:
    /// Each ends with its entry of zeros or with the span. They must outlive the UI.
    struct Tables {
        std::span<const ZulControlAreaDescriptor> areas;
        std::span<const QMWidgetDescriptor> widgets;
        std::span<const QMWidgetHelpEntry> help;
    };

    /// There are no widgets before setupAfterCreation. The other two as for QMPlugInUI.
    QMWidgetPluginUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost, QMWidgetFactory widgetFactory,
                     const Tables& editorTables);
    ~QMWidgetPluginUI() override;

    /// Builds the widgets.
    void setupAfterCreation() override;

    [[nodiscard]] juce::Rectangle<int> getDesignSize() const override { return designExtent; }

    [[nodiscard]] juce::Rectangle<int> getScaledSize() const override { return scaledExtent; }

    /// The last one of several; null without one. A control's readout has its control's identifier
    /// with bit 29 flipped: readoutID.
    [[nodiscard]] QMWidget* widgetOfID(FourCharCode widgetID) const;

    [[nodiscard]] static constexpr FourCharCode readoutID(FourCharCode controlID) {
        return controlID ^ (FourCharCode{1} << 29);
    }

    [[nodiscard]] const ParameterWidgets::Map& widgetsByParameter() const {
        return parameterMap().widgetsByParameter();
    }

    /// Those with a parameter or a display, and those that asked to be among them.
    [[nodiscard]] const std::vector<QMWidget*>& getParameterWidgets() const {
        return parameterWidgets;
    }

    /// What the text of labels and controls is drawn in.
    enum class Captions {
        coloured, ///< the text colour
        legible,  ///< what is legible on the panel
    };

    /// For readouts made from now on, and for every readout and caption there is.
    void setTextColour(juce::Colour colour, Captions captions = Captions::coloured);

    [[nodiscard]] juce::Colour getTextColour() const { return textColour; }

    /// What the keys of the editor's preferences begin with.
    [[nodiscard]] const std::string& getProductCode() const { return productCode; }

    /// Percent that a menu may offer; empty when the product names none.
    [[nodiscard]] const std::vector<std::int32_t>& getMagnificationSteps() const {
        return magnificationSteps;
    }

    [[nodiscard]] std::int32_t getHeaderButtonsRight() const { return headerButtonsRight; }

protected:
    // Before the widgets are built. Lengths in design units.

    void setProductCode(std::string code) { productCode = std::move(code); }

    void setMagnificationSteps(std::vector<std::int32_t> percents) {
        magnificationSteps = std::move(percents);
    }

    /// A strip above the design area, to which a few buttons move; 0 for none.
    void setHeaderHeight(std::int32_t height) { headerHeight = height; }

    void setReadoutHeight(std::int32_t height) { readoutHeight = height; }

    /// True once, when they were built.
    bool buildWidgets();

    /// Moves a widget, in design units.
    void placeWidget(QMWidget& widget, juce::Rectangle<int> designArea);

    void placeContents() override;

    void layoutEdited() override { measure(); }

    /// Without readouts, which follow from their controls.
    [[nodiscard]] std::vector<const QMWidget*> laidOutWidgets() const override;

private:
    void buildArea(const ZulControlAreaDescriptor& area);
    /// Null for a control that has none.
    QMWidget* makeReadout(QMWidget& control, const QMWidgetDescriptor& descriptor,
                          QMWidgetFactory::Readout place);
    [[nodiscard]] juce::Rectangle<int> areaOfWidget(const ZulControlAreaDescriptor& area);
    [[nodiscard]] juce::Rectangle<int> areaOfReadout(juce::Rectangle<int> control,
                                                     QMWidgetFactory::Readout place) const;
    [[nodiscard]] const QMWidgetDescriptor* descriptorOf(FourCharCode widgetID) const;
    [[nodiscard]] juce::String helpOf(FourCharCode widgetID) const;

    QMWidget& keep(std::unique_ptr<QMWidget> made);
    void configure(QMWidget& widget, const QMWidgetDescriptor& descriptor,
                   QMWidgetFactory::Items items, juce::Rectangle<int> designArea);
    [[nodiscard]] Slots bindParameters(QMWidget& widget, const QMWidgetDescriptor& descriptor,
                                       QMWidgetFactory::Items items);
    void describeSlot(QMWidget& widget, std::uint32_t slot, std::int32_t index,
                      QMWidgetFactory::Items items);
    [[nodiscard]] bool bindDisplays(QMWidget& widget, const QMWidgetDescriptor& descriptor);
    [[nodiscard]] bool isReadout(const QMWidget& widget) const;
    void place(QMWidget& widget);
    void measure();
    void raiseExtents(const QMWidget& widget);

    const QMWidgetFactory factory;
    const Tables tables;
    std::vector<std::unique_ptr<QMWidget>> widgets; ///< in the order of their making
    std::vector<const QMWidget*> readouts;
    std::map<FourCharCode, QMWidget*> widgetsByID;
    std::vector<QMWidget*> parameterWidgets;
    juce::Rectangle<int> scaledExtent; ///< from 0, 0 to the largest edges
    juce::Rectangle<int> designExtent;
    std::int32_t headerHeight = 0;
    std::int32_t readoutHeight = 18;
    std::int32_t headerButtonsRight = 0;
    std::string productCode;
    std::vector<std::int32_t> magnificationSteps;
    juce::Colour textColour{0, 255, 0};
    bool built = false;
};
