// SPDX-License-Identifier: GPL-3.0-or-later
// State of the VST3 plug-in.

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/StateStreamReading.h"
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

namespace {

/// What the host's stream holds from its position on, read while nothing is locked. Afterwards the
/// stream stands behind what of it was used, as if it had been read piece by piece.
class StreamCopy {
public:
    explicit StreamCopy(IBStream& hostStream)
        : stream(hostStream)
        , begin(stream.tell())
        , copy(readRemaining(stream)) {}

    IStateByteStream& bytes() { return copy; }

    void finish() {
        if (begin >= 0)
            stream.seek(begin + copy.tell());
    }

private:
    IBStreamBytes stream;
    std::int64_t begin;
    StateMemoryStream copy;
};

} // namespace

tresult PLUGIN_API QMShellVST3::setState(IBStream* stream) {
    if (stream == nullptr)
        return kInvalidArgument;
    return contained("QMShellVST3::setState", failed, [&] {
        StreamCopy copy(*stream);
        EntryRestorer restorer(*this);
        const tresult result = guarded("QMShellVST3::setState", failed, [&] {
            return restore(copy.bytes(), restorer) ? kResultOk : kResultFalse;
        });
        copy.finish();
        restorer.tellHost();
        return result;
    });
}

bool QMShellVST3::restore(IStateByteStream& stream, IStateEntrySink& sink) {
    if (hosted.get() == nullptr)
        return false;
    const Vst3StateReading reading =
        readVst3State(stream, *hosted.get(), {sink, product.vst2UniqueId});
    refreshParameters();
    return isAccepted(reading);
}

tresult PLUGIN_API QMShellVST3::setComponentState(IBStream* stream) {
    return setState(stream);
}

tresult PLUGIN_API QMShellVST3::getState(IBStream* stream) {
    if (stream == nullptr)
        return kInvalidArgument;
    return contained("QMShellVST3::getState", failed, [&] {
        const auto record = guarded("QMShellVST3::getState", std::optional<QMGenericPreset>(), [&] {
            return hosted.get() == nullptr
                       ? std::nullopt
                       : std::optional(hosted.get()->getStateRecord(StateExtent::complete));
        });
        if (!record)
            return kResultFalse;
        // Whatever the host's stream takes of it: the answer has always been success.
        IBStreamBytes bytes(*stream);
        static_cast<void>(writeVst3Envelope(bytes, *record));
        return kResultOk;
    });
}
