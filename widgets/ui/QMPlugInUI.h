// SPDX-License-Identifier: GPL-3.0-or-later
// The base of every plug-in editor: background, magnification, and the way of parameters between
// the widgets and the plug-in instance.
//
// The instance is only touched while it is held (see QMPlugInAccess), and nobody outside is called
// with it in hand. Changes may come in with the control lock taken; they go to the widgets and to
// the header, no further.
//
// Whoever derives from it and owns widgets calls disconnect first in its destructor. [message
// thread]
#pragma once

#include "plugin-model/NoxMeterRecord.h"
#include "widgets/base/QMDumpableLayout.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/notifications/PluginUIParameterMultipleNT.h"
#include "widgets/notifications/QMNotificationCenter.h"
#include "widgets/notifications/QMPlugInUIParameterHandler.h"
#include "widgets/ui/IQMPlugInUI.h"
#include "widgets/ui/OpenGestures.h"
#include "widgets/ui/ParameterWidgets.h"
#include "widgets/ui/QMEditContainer.h"
#include "widgets/ui/QMPlugInAccess.h"

#include <limits>
#include <optional>

class IQMDisplayWidget;
class IQMParameterController;
class IQMPlugInUIHost;

class QMPlugInUI : public QMEditContainer,
                   public IQMPlugInUI,
                   public QMDumpableLayout,
                   public QMParentColorSource {
public:
    using Clock = std::function<double()>; ///< seconds

    /// For an instance that is there until this returns and may go at any time after. The host,
    /// which may be null, outlives the UI.
    QMPlugInUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost);
    ~QMPlugInUI() override;

    // IQMPlugInUIParameters.

    void parameterChanged(std::int32_t index, double value) override;
    void parametersChanged(std::int32_t count, const std::int32_t* indices,
                           const double* values) override;
    [[nodiscard]] std::int32_t parameterIndex(FourCharCode id) const override;
    [[nodiscard]] double parameterValue(std::int32_t index) const override;
    void setParameterFromUI(std::int32_t index, double value) override;

    // IQMPlugInUI.

    [[nodiscard]] juce::Component& component() override { return *this; }

    [[nodiscard]] bool belongsTo(const INoxPlugIn* plugIn) const override;
    [[nodiscard]] std::string plugInName() const override;
    [[nodiscard]] std::int32_t parameterCount() const override;
    [[nodiscard]] FourCharCode parameterID(std::int32_t index) const override;
    [[nodiscard]] std::string parameterName(std::int32_t index) const override;
    [[nodiscard]] std::string parameterUnit(std::int32_t index) const override;
    [[nodiscard]] std::string parameterText(std::int32_t index, double value) const override;
    [[nodiscard]] double parameterMinimum(std::int32_t index) const override;
    [[nodiscard]] double parameterMaximum(std::int32_t index) const override;
    [[nodiscard]] double parameterDefault(std::int32_t index) const override;
    [[nodiscard]] std::int32_t parameterAt(juce::Point<int> position) const override;
    void setScalePercent(std::int32_t percent) override;
    void setMagnification(float factor) override;

    [[nodiscard]] float getMagnification() const override { return magnification; }

    void setHelpEnabled(bool on) override;

    void preferenceChanged(const juce::String&) override {}

    void tick() override;

    [[nodiscard]] std::int32_t getScalePercent() const { return scalePercent; }

    /// Time that ticks are measured by; the toolkit's until set.
    void setClock(Clock newClock) { clock = std::move(newClock); }

    /// True while setParameterFromUI runs.
    [[nodiscard]] bool isWritingFromUI() const { return writing; }

    // QMDumpableLayout.

    [[nodiscard]] std::string layoutDump() const override;
    void dumpLayout() const override;

    // juce::Component.

    void paint(juce::Graphics& g) override;

protected:
    using Slots = PluginUIParameterMultipleNT::SlotMap; ///< slot to parameter index

    [[nodiscard]] const QMPlugInAccess& access() const { return instanceAccess; }

    /// Null without one.
    [[nodiscard]] IQMPlugInUIHost* uiHost() const { return host; }

    [[nodiscard]] const ParameterWidgets& parameterMap() const { return widgetMap; }

    /// Ends what is open, and hears nothing more. Twice is once.
    void disconnect();

    // Connecting widgets.

    /// Gives a widget whose slots are bound all it needs to read, write and follow parameters. The
    /// widget stays until disconnect.
    void connectWidget(QMWidget& widget, const Slots& slots);
    /// Adds the parameter's generic target where there is one.
    void addGenericTarget(QMWidget& widget, std::int32_t index);
    /// False for an identifier that no meter has.
    bool bindMeter(IQMDisplayWidget& display, std::uint32_t slot, FourCharCode displayID);
    /// Ticked from now on.
    void addDisplay(IQMDisplayWidget& display);

    /// What else may stand behind the controls of a parameter; null for nothing.
    [[nodiscard]] virtual QMGenericParameterTarget* genericTarget(std::int32_t /*index*/) {
        return nullptr;
    }

    [[nodiscard]] const std::vector<NoxMeterRecord>& meters() const { return meterRecords; }

    // Writing.

    /// The value to be written for one that a control asks for; none to refuse it.
    [[nodiscard]] virtual std::optional<double> acceptedValue(std::int32_t index, double value);

    /// A value has been written by setParameterFromUI.
    virtual void parameterChangedFromUI(std::int32_t /*index*/, double /*value*/) {}

    // Size.

    /// Where the user's size is kept; not at all under an empty key.
    void setSizeKey(std::string key) { sizeKey = std::move(key); }

    [[nodiscard]] const std::string& getSizeKey() const { return sizeKey; }

    /// What widgets are placed by when they are made.
    void setInitialMagnification(float factor) { magnification = factor; }

    /// The largest factor that the screen has room for.
    [[nodiscard]] float magnificationLimit() const;

    enum class Keep { no, yes };

    /// Takes a percentage whether it is new or not; kept is what the user chose.
    void applyScalePercent(std::int32_t percent, Keep keep);

    /// Everything to its place at the current magnification.
    virtual void placeContents() = 0;

    // Looks.

    /// Null for none: then the base colour fills the editor, shaded.
    [[nodiscard]] virtual juce::Image backgroundImage() { return {}; }

    /// Its name among all pictures.
    [[nodiscard]] virtual juce::String backgroundName() const { return {}; }

    /// The widgets that are entries of the layout table.
    [[nodiscard]] virtual std::vector<const QMWidget*> laidOutWidgets() const;

    [[nodiscard]] float layoutMagnification() const override { return magnification; }

private:
    [[nodiscard]] IQMParameterController* controller() const;
    void refresh(const ParameterWidgets::Place& place, double noticed) const;
    void gestureChanged(const ParameterWidgets::Place& place, std::int32_t index, bool begins);
    void refreshMeterRecords();
    void paintShading(juce::Graphics& g) const;
    void paintImage(juce::Graphics& g, const juce::Image& image) const;

    QMPlugInAccess instanceAccess;
    IQMPlugInUIHost* const host;
    QMNotificationCenter center; ///< owns the targets of the widgets
    std::vector<NoxMeterRecord> meterRecords;
    std::vector<IQMDisplayWidget*> displays;
    ParameterWidgets widgetMap;
    OpenGestures gestures{instanceAccess};
    QMPlugInUIParameterHandler handler;
    bool connected = false;
    bool writing = false;
    float magnification = 1.0F;
    std::int32_t scalePercent = 100;
    std::string sizeKey;
    Clock clock;
    double lastTick = std::numeric_limits<double>::lowest();
};
