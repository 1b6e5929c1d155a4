// SPDX-License-Identifier: GPL-3.0-or-later
// State of the VST3 plug-in.

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/Vst3Envelope.h"
#include "QMShell/state/Vst3State.h"
#include "QMShell/vst3/IBStreamBytes.h"
#include "QMShell/vst3/QMShellVST3.h"
#include "QMShell/vst3/QMShellVST3Guard.h"
#include "QMShell/vst3/QMVstParameter.h"
#include "plugin-model/INoxPlugIn.h"
#include "presets/record/QMGenericPreset.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

using namespace Steinberg;
using namespace Steinberg::Vst;

/// Takes the values of a VST 2 state, and keeps for later what the host is to hear of them.
class QMShellVST3::EntryRestorer final : public IStateEntrySink {
public:
    explicit EntryRestorer(QMShellVST3& adapter)
        : shell(adapter) {}

    void restoreParameter(FourCharCode identifier, double storedValue) override {
        const int32 index = shell.indexOf(identifier);
        if (index < 0 || std::isnan(storedValue))
            return;
        const INoxPlugIn& instance = *shell.hosted.get();
        const double normalised = instance.plainToNormalised(index, storedValue);
        shell.setPlainValue(index, instance.normalisedToPlain(index, normalised));
        edits.emplace_back(shell.parameterAt(index)->getInfo().id,
                           std::clamp(normalised, 0.0, 1.0));
    }

    /// To be called without the control lock.
    void tellHost() {
        for (const auto& [id, normalised] : edits) {
            shell.beginEdit(id);
            shell.performEdit(id, normalised);
            shell.endEdit(id);
        }
    }

private:
    QMShellVST3& shell;
    std::vector<std::pair<ParamID, ParamValue>> edits;
};

tresult PLUGIN_API QMShellVST3::setState(IBStream* stream) {
    if (stream == nullptr)
        return kInvalidArgument;
    EntryRestorer restorer(*this);
    const tresult result = guarded("setState", failed, [&] {
        if (hosted.get() == nullptr)
            return kResultFalse;
        IBStreamBytes bytes(*stream);
        const Vst3StateReading reading =
            readVst3State(bytes, *hosted.get(), {restorer, product.vst2UniqueId});
        refreshParameters();
        return isAccepted(reading) ? kResultOk : kResultFalse;
    });
    restorer.tellHost();
    return result;
}

tresult PLUGIN_API QMShellVST3::setComponentState(IBStream* stream) {
    return setState(stream);
}

tresult PLUGIN_API QMShellVST3::getState(IBStream* stream) {
    if (stream == nullptr)
        return kInvalidArgument;
    std::optional<QMGenericPreset> record;
    const tresult result = guarded("getState", failed, [&] {
        if (hosted.get() == nullptr)
            return kResultFalse;
        record = hosted.get()->getStateRecord(StateExtent::complete);
        return kResultOk;
    });
    if (!record)
        return result;
    // Whatever the host's stream takes of it: the answer has always been success.
    return guarded("getState", failed, [&] {
        IBStreamBytes bytes(*stream);
        static_cast<void>(writeVst3Envelope(bytes, *record));
        return kResultOk;
    });
}
