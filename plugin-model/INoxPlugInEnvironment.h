// SPDX-License-Identifier: GPL-3.0-or-later
// The environment an instance lives in: the registry of plug-in types, the hub that tells listeners
// what happens to an instance, and what is known of the host and its transport. A host adapter owns
// one. It takes no lock: control threads only.
#pragma once

#include "plugin-model/FourCharCode.h"
#include "plugin-model/NoxHostDescription.h"
#include "plugin-model/NoxTransport.h"
#include "plugin-model/QMGenericEventSource.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <memory>
#include <mutex>

class INoxPlugIn;
class INoxPlugInType;
class INoxPlugInTypeGroup;
class IQMPlugInUI;
class NoxParameterHandler;

class INoxPlugInEnvironment {
public:
    virtual ~INoxPlugInEnvironment() = default;

    /// To be held while an instance of this environment is asked or changed where several threads
    /// may do so: the host's control threads, offline processing, the message thread with the
    /// editor. It is taken before any other lock, and with it held nobody calls the host or waits
    /// for the message thread: both may want it. [any thread but audio]
    virtual std::recursive_mutex& controlLock() = 0;

    // Host and transport.

    /// The record itself, for an adapter to fill in place.
    virtual NoxHostDescription& hostDescription() = 0;
    virtual void setHostDescription(const NoxHostDescription& description) = 0;
    /// Asks the providers that info.flags requests (rate and position always), then fills info.
    virtual void getTimeInfo(NoxTimeInfo& info) = 0;
    virtual void setPosition(std::uint64_t position) = 0;
    virtual void setValueE(std::uint64_t value) = 0;
    virtual void setValueF(std::uint64_t value) = 0;
    virtual void setValueG(std::uint64_t value) = 0;
    virtual void setValuesFG(std::uint64_t f, std::uint64_t g) = 0;
    /// Beats a minute.
    virtual void setTempo(double tempo) = 0;
    virtual void setTimeSignature(std::uint32_t numerator, std::uint32_t denominator) = 0;
    /// Bit 0 to 4; other bits are ignored.
    virtual void setTransportFlag(std::uint32_t bit, bool set) = 0;

    // Types.

    /// Registers the group and its types and tells each type its global index. Answers what the
    /// last type answered; 0 for an empty group.
    virtual std::int32_t registerTypeGroup(INoxPlugInTypeGroup& group) = 0;
    /// The type with this code in a group with this manufacturer code; null when there is none.
    virtual INoxPlugInType* findType(FourCharCode groupID, FourCharCode typeID) = 0;
    [[nodiscard]] virtual std::uint32_t typeCount() const = 0;
    /// Null out of range.
    [[nodiscard]] virtual INoxPlugInType* typeAt(std::uint32_t index) const = 0;

    // Listeners (not owned).

    virtual void addListener(NoxParameterHandler& handler) = 0;
    virtual void removeListener(NoxParameterHandler& handler) = 0;

    // News of an instance, passed on to its listeners in the order in which they were added.

    virtual void plugInGoingAway(INoxPlugIn& plugIn) = 0;
    virtual void sampleRateSet(INoxPlugIn& plugIn, const double* rate) = 0;
    virtual void blockSizeSet(INoxPlugIn& plugIn, std::int32_t frames) = 0;
    virtual void parameterTouched(INoxPlugIn& plugIn, std::int32_t index) = 0;
    virtual void parameterReleased(INoxPlugIn& plugIn, std::int32_t index) = 0;
    virtual void parameterChanged(INoxPlugIn& plugIn, std::int32_t index, double value,
                                  std::uint8_t flag) = 0;
    virtual void parametersChanged(INoxPlugIn& plugIn, std::int32_t count,
                                   const std::int32_t* indices, const double* values,
                                   std::uint8_t flag) = 0;

    // Event sources of parameter controllers.

    /// Makes a source of a mapping document. Null for a kind of source that is not known, and in
    /// an environment without any.
    virtual std::unique_ptr<QMGenericEventSource> createEventSource(const nlohmann::json&) {
        return nullptr;
    }

    // Editors.

    /// The editor that every product has, with one control for each parameter, for an instance of
    /// this environment; the parent is what the host's windows are to it, or null. Null in an
    /// environment without editors. [message thread]
    virtual std::shared_ptr<IQMPlugInUI> createGenericEditor(INoxPlugIn&, void* /*parent*/) {
        return nullptr;
    }

    // General-purpose integers of this environment.

    /// 0 when absent.
    [[nodiscard]] virtual std::uint32_t getValue(std::uint32_t key) const = 0;
    virtual void eraseValue(std::uint32_t key) = 0;
    virtual void setValue(std::uint32_t key, std::uint32_t value) = 0;
};
