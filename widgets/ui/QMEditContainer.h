// SPDX-License-Identifier: GPL-3.0-or-later
// A panel of widgets whose layout designers can edit in place: a lasso selects, a drag moves what
// is selected, keys with Alt line it up. Off unless enabled; while it is on, widgets do not get the
// mouse. [message thread]
#pragma once

#include "widgets/ui/LayoutAlignment.h"
#include "widgets/ui/QMComponentDragger.h"
#include "widgets/ui/QMSelectableLassoSource.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QMWidget;

class QMEditContainer : public juce::Component,
                        public juce::ApplicationCommandTarget,
                        public juce::LassoSource<QMComponentDragger*>,
                        public juce::ChangeListener,
                        public juce::KeyListener {
public:
    enum Commands : juce::CommandID {
        editLayout = 0x4C617901, ///< the layout mode on and off
        selectEverything,
    };

    using Printer = std::function<void(const std::string&)>;

    QMEditContainer();
    ~QMEditContainer() override;

    /// Whether there is a layout mode at all; taking that away ends it.
    void setLayoutEditEnabled(bool flag);

    [[nodiscard]] bool isLayoutEditEnabled() const { return layoutEditEnabled; }

    /// Nothing where it is not enabled. What widgets there are counts when it is turned on.
    void setLayoutEditing(bool flag);

    [[nodiscard]] bool isLayoutEditing() const { return layoutEditing; }

    /// Where designers read what the mode found; the standard output until set.
    void setLayoutPrinter(Printer newPrinter) { printer = std::move(newPrinter); }

    [[nodiscard]] std::vector<QMWidget*> selectedWidgets() const;

    /// Moves what is selected; nothing selected is nothing to do.
    void alignSelected(LayoutAlignment alignment);

    // For draggers.

    juce::SelectedItemSet<QMComponentDragger*>& selection() { return selected; }

    void beginDrag();
    /// Pixels from where the drag began.
    void dragSelected(juce::Point<int> offset);

    // juce::LassoSource.

    void findLassoItemsInArea(juce::Array<QMComponentDragger*>& itemsFound,
                              const juce::Rectangle<int>& area) override;

    juce::SelectedItemSet<QMComponentDragger*>& getLassoSelection() override { return selected; }

    // juce::ApplicationCommandTarget.

    juce::ApplicationCommandTarget* getNextCommandTarget() override;
    void getAllCommands(juce::Array<juce::CommandID>& commands) override;
    void getCommandInfo(juce::CommandID command, juce::ApplicationCommandInfo& info) override;
    bool perform(const InvocationInfo& invocation) override;

    // juce::Component, juce::KeyListener, juce::ChangeListener.

    void mouseDown(const juce::MouseEvent& event) override;
    void mouseDrag(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;
    using juce::Component::keyPressed;
    bool keyPressed(const juce::KeyPress& key, juce::Component* origin) override;
    void changeListenerCallback(juce::ChangeBroadcaster* source) override;

protected:
    void print(const std::string& text) const { printer(text); }

    /// Pixels per design unit.
    [[nodiscard]] virtual float layoutMagnification() const { return 1.0F; }

    /// The design areas of some widgets are others now.
    virtual void layoutEdited() {}

private:
    /// Tells the widgets.
    struct Selection final : juce::SelectedItemSet<QMComponentDragger*> {
        void itemSelected(QMComponentDragger* item) override {
            item->selectable().setSelected(true);
        }

        void itemDeselected(QMComponentDragger* item) override {
            item->selectable().setSelected(false);
        }
    };

    void coverWidgets();
    void place(QMWidget& widget, juce::Rectangle<int> designArea);

    bool layoutEditEnabled = false;
    bool layoutEditing = false;
    QMSelectableLassoSource candidates{*this};
    std::vector<std::unique_ptr<QMComponentDragger>> draggers;
    Selection selected;
    std::unique_ptr<juce::LassoComponent<QMComponentDragger*>> lasso; ///< while it is drawn
    std::vector<std::pair<QMWidget*, juce::Rectangle<int>>> areasBeforeDrag;
    Printer printer;
};
