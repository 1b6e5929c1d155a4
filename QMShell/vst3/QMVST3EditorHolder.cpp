// SPDX-License-Identifier: GPL-3.0-or-later
// The view as the editor's GUI holder: what the editor asks of the adapter and the host.

#include "QMShell/vst3/ContentWrapperComponent.h"
#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMVST3Editor.h"

#include "QMShell/gui/QMShell_ViewComponent.h"
#include "plugin-model/INoxPlugIn.h"
#include "widgets/ui/IQMPlugInUI.h"

#include <pluginterfaces/vst/ivstcontextmenu.h>

#include <mutex>
#include <optional>

using namespace Steinberg;
using namespace Steinberg::Vst;

std::recursive_mutex* QMVST3Editor::controlLock() {
    return &adapter->controlLock();
}

INoxPlugIn* QMVST3Editor::plugIn() {
    const std::scoped_lock lock(adapter->controlLock());
    return adapter->currentInstance();
}

bool QMVST3Editor::setViewContainerSize(std::int32_t height, std::int32_t width) {
    if (!frame)
        return true;
    ViewRect wanted(0, 0, width, height);
    setRect(wanted);
    frame->resizeView(this, &wanted);
    return true;
}

void QMVST3Editor::setHelpEnabled(bool on) {
    ToolkitUse::setTooltipsAtOnce(on);
}

double QMVST3Editor::sampleRate() {
    return adapter->sampleRate();
}

double QMVST3Editor::tempo() {
    return adapter->hostTempo();
}

std::int32_t QMVST3Editor::inputFormat() {
    SpeakerArrangement arrangement = SpeakerArr::kEmpty;
    adapter->getBusArrangement(kInput, 0, arrangement);
    return static_cast<std::int32_t>(arrangement);
}

bool QMVST3Editor::handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys& modifiers) {
    if (!modifiers.isRightButtonDown() || !content)
        return false;
    const FUnknownPtr<IComponentHandler3> handler(adapter->getComponentHandler());
    const std::int32_t index = adapter->indexOfParameter(id);
    if (!handler || index < 0)
        return false;
    const auto tag = static_cast<ParamID>(index);
    const IPtr<IContextMenu> menu = owned(handler->createContextMenu(this, &tag));
    if (!menu)
        return false;
    // Of the press: the mouse may have moved on since, and where it is now the toolkit reckons from
    // the place of whichever editor's window moved last.
    const juce::Point<int> place =
        content
            ->getLocalPoint(
                nullptr,
                juce::Desktop::getInstance().getMainMouseSource().getLastMouseDownPosition())
            .roundToInt();
    menu->popup(place.x, place.y);
    return true;
}

void QMVST3Editor::setParameterValue(FourCharCode id, double plain) {
    const std::optional<QMShellVST3::EditedParameter> edited = adapter->setFromEditor(id, plain);
    if (edited)
        adapter->performEdit(edited->id, edited->normalised);
}

void QMVST3Editor::parameterChanged(FourCharCode id) {
    IQMPlugInUI* const ui = view() == nullptr ? nullptr : view()->ui();
    if (ui == nullptr)
        return;
    const std::scoped_lock lock(adapter->controlLock());
    const INoxPlugIn* const instance = adapter->currentInstance();
    const std::int32_t index = adapter->indexOfParameter(id);
    if (instance != nullptr && index >= 0)
        ui->parameterChanged(index, instance->parameterValue(index));
}

float QMVST3Editor::parameterValue(FourCharCode id) {
    const std::scoped_lock lock(adapter->controlLock());
    const INoxPlugIn* const instance = adapter->currentInstance();
    const std::int32_t index = adapter->indexOfParameter(id);
    if (instance == nullptr || index < 0)
        return 0.0f;
    return static_cast<float>(instance->plainToNormalised(index, instance->parameterValue(index)));
}

void QMVST3Editor::beginParameterGesture(FourCharCode id) {
    const std::int32_t index = adapter->indexOfParameter(id);
    if (index >= 0)
        adapter->beginEdit(static_cast<ParamID>(index));
}

void QMVST3Editor::endParameterGesture(FourCharCode id) {
    const std::int32_t index = adapter->indexOfParameter(id);
    if (index >= 0)
        adapter->endEdit(static_cast<ParamID>(index));
}
