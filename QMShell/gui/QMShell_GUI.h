// SPDX-License-Identifier: GPL-3.0-or-later
// The GUI holder: what an editor's view knows of the adapter that the host has loaded. Each plug-in
// interface has its own form. Parameters are named by their four-character identifiers.
// [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"
#include "widgets/ui/QMPlugInUIFactory.h"

#include <cstdint>
#include <mutex>

class INoxPlugIn;
class QMShell_ViewComponent;

namespace juce {
class ModifierKeys;
}

class QMShell_GUI {
public:
    /// With what makes the editors that its views show.
    explicit QMShell_GUI(QMPlugInUIFactory uiFactory);
    /// Deletes the view if it owns it. The view then finds a holder without a form any more: a form
    /// whose gestures have to end with the editor lets go of the view itself.
    virtual ~QMShell_GUI();
    QMShell_GUI(const QMShell_GUI&) = delete;
    QMShell_GUI& operator=(const QMShell_GUI&) = delete;

    // The view.

    /// Makes a view for this holder, which then owns it. What is there already stays with whoever
    /// owns it, and goes if that is the holder.
    virtual QMShell_ViewComponent* createView();
    /// A view that somebody else owns; null for none. One that the holder owns goes.
    virtual void setView(QMShell_ViewComponent* newView);

    [[nodiscard]] QMShell_ViewComponent* view() const { return view_; }

    [[nodiscard]] bool ownsView() const { return ownsView_; }

    // The plug-in instance.

    /// To be held for as long as the instance is used. Null where the host uses the instance on
    /// the message thread alone.
    [[nodiscard]] virtual std::recursive_mutex* controlLock() { return nullptr; }

    /// The current one; null without one.
    [[nodiscard]] virtual INoxPlugIn* plugIn() = 0;

    /// Computes coefficients at once where the host's interface puts that off.
    virtual void updateCoefficients() {}

    // The host.

    /// Asks the host for another size of its window, in pixels. True also where nobody could be
    /// asked.
    virtual bool setViewContainerSize(std::int32_t height, std::int32_t width) = 0;
    /// Tooltips at once, or practically never.
    virtual void setHelpEnabled(bool on) = 0;
    /// Hz.
    [[nodiscard]] virtual double sampleRate() = 0;
    /// Beats a minute.
    [[nodiscard]] virtual double tempo() = 0;
    /// Channel formats as the host's interface numbers them.
    [[nodiscard]] virtual std::int32_t inputFormat() = 0;
    [[nodiscard]] virtual std::int32_t outputFormat() = 0;

    // Parameters.

    /// True when the host takes the press on a control for itself.
    virtual bool handleParameterMouseDown(FourCharCode, const juce::ModifierKeys&) { return false; }

    /// A value from the editor, in plain units: to the instance and, as an edit, to the host.
    virtual void setParameterValue(FourCharCode id, double plain) = 0;
    /// The host has changed the parameter.
    virtual void parameterChanged(FourCharCode id) = 0;
    /// In the units of the form: normalised (VST3), plain (AAX), or always 0 (VST 2).
    [[nodiscard]] virtual float parameterValue(FourCharCode id) = 0;

    virtual void beginParameterGesture(FourCharCode) {}

    virtual void endParameterGesture(FourCharCode) {}

private:
    QMPlugInUIFactory makeUI;
    QMShell_ViewComponent* view_ = nullptr;
    bool ownsView_ = false;
};
