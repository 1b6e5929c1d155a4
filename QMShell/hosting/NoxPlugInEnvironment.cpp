// SPDX-License-Identifier: GPL-3.0-or-later
// Types, listeners and news. Time is in EnvironmentTime.cpp beside this one.
#include "QMShell/hosting/NoxPlugInEnvironment.h"

#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"
#include "plugin-model/NoxParameterHandler.h"
#include "services/Log.h"

#include <algorithm>

namespace {

constexpr std::size_t expectedTypes = 128;
constexpr double rateBeforeFirstNews = 1.0;
constexpr double defaultTempo = 120.0;

} // namespace

NoxPlugInEnvironment::NoxPlugInEnvironment()
    : time{rateBeforeFirstNews,
           0,
           defaultTempo,
           noxUnknownPosition,
           noxUnknownPosition,
           noxUnknownPosition,
           {},
           0} {
    types.reserve(expectedTypes);
}

NoxPlugInEnvironment::~NoxPlugInEnvironment() = default;

std::int32_t NoxPlugInEnvironment::registerTypeGroup(INoxPlugInTypeGroup& group) {
    groups.push_back(&group);
    std::int32_t answer = 0;
    for (std::int32_t i = 0; i < group.typeCount(); ++i) {
        INoxPlugInType* type = group.typeOfIndex(i);
        types.push_back(type);
        answer = type->setGlobalIndex(static_cast<std::int32_t>(types.size()) - 1);
    }
    return answer;
}

INoxPlugInType* NoxPlugInEnvironment::findType(FourCharCode groupID, FourCharCode typeID) {
    for (INoxPlugInType* type : types) {
        if (type->groupManufacturerCode() != groupID)
            continue;
        const std::int32_t entry = type->resolveTypeCode(typeID);
        if (entry != -1)
            return type->typeAtEntry(entry);
    }
    return nullptr;
}

std::uint32_t NoxPlugInEnvironment::typeCount() const {
    return static_cast<std::uint32_t>(types.size());
}

INoxPlugInType* NoxPlugInEnvironment::typeAt(std::uint32_t index) const {
    return index < types.size() ? types[index] : nullptr;
}

bool NoxPlugInEnvironment::ByPlugIn::operator()(const NoxParameterHandler* a,
                                                const NoxParameterHandler* b) const {
    return std::less<>()(a->plugIn(), b->plugIn());
}

void NoxPlugInEnvironment::addListener(NoxParameterHandler& handler) {
    listeners.insert(&handler); // behind equal keys
}

NoxPlugInEnvironment::Listeners::iterator NoxPlugInEnvironment::find(NoxParameterHandler& handler) {
    const auto [first, last] = listeners.equal_range(&handler);
    for (auto it = first; it != last; ++it) {
        if (*it == &handler)
            return it;
    }
    return listeners.end();
}

void NoxPlugInEnvironment::removeListener(NoxParameterHandler& handler) {
    const auto found = find(handler);
    if (found != listeners.end())
        listeners.erase(found);
}

void NoxPlugInEnvironment::tell(const INoxPlugIn& plugIn,
                                const std::function<void(NoxParameterHandler&)>& news) {
    NoxParameterHandler probe(&plugIn);
    const auto [first, last] = listeners.equal_range(&probe);
    const std::vector<NoxParameterHandler*> told(first, last);
    for (NoxParameterHandler* handler : told) {
        // One told earlier may have removed this one, which may be gone: compare addresses only.
        const auto [begin, end] = listeners.equal_range(&probe);
        if (std::find(begin, end, handler) != end)
            news(*handler);
    }
}

void NoxPlugInEnvironment::plugInGoingAway(INoxPlugIn& plugIn) {
    QM::log(QM::LogLevel::trace, "Env[%p]: Plug-in %p going away...\n", static_cast<void*>(this),
            static_cast<void*>(&plugIn));
    tell(plugIn, [](NoxParameterHandler& handler) { handler.plugInGoingAway(); });
}

void NoxPlugInEnvironment::sampleRateSet(INoxPlugIn& plugIn, const double* rate) {
    time.sampleRate = *rate;
    QM::log(QM::LogLevel::trace, "Env[%p]: %p s/r set to %g\n", static_cast<void*>(this),
            static_cast<void*>(&plugIn), *rate);
    tell(plugIn, [&](NoxParameterHandler& handler) { handler.sampleRateChanged(rate); });
}

void NoxPlugInEnvironment::blockSizeSet(INoxPlugIn& plugIn, std::int32_t frames) {
    QM::log(QM::LogLevel::trace, "Env[%p]: %p blocksize set to %d\n", static_cast<void*>(this),
            static_cast<void*>(&plugIn), frames);
    tell(plugIn, [&](NoxParameterHandler& handler) { handler.blockSizeChanged(frames); });
}

void NoxPlugInEnvironment::parameterTouched(INoxPlugIn& plugIn, std::int32_t index) {
    QM::log(QM::LogLevel::trace, "Env[%p]: %p param %d TOUCHED\n", static_cast<void*>(this),
            static_cast<void*>(&plugIn), index);
    tell(plugIn, [&](NoxParameterHandler& handler) { handler.parameterTouched(index); });
}

void NoxPlugInEnvironment::parameterReleased(INoxPlugIn& plugIn, std::int32_t index) {
    QM::log(QM::LogLevel::trace, "Env[%p]: %p param %d RELEASED\n", static_cast<void*>(this),
            static_cast<void*>(&plugIn), index);
    tell(plugIn, [&](NoxParameterHandler& handler) { handler.parameterReleased(index); });
}

void NoxPlugInEnvironment::parameterChanged(INoxPlugIn& plugIn, std::int32_t index, double value,
                                            std::uint8_t flag) {
    tell(plugIn,
         [&](NoxParameterHandler& handler) { handler.parameterChanged(index, value, flag); });
}

void NoxPlugInEnvironment::parametersChanged(INoxPlugIn& plugIn, std::int32_t count,
                                             const std::int32_t* indices, const double* values,
                                             std::uint8_t flag) {
    tell(plugIn, [&](NoxParameterHandler& handler) {
        handler.parametersChanged(count, indices, values, flag);
    });
}

std::shared_ptr<IQMPlugInUI> NoxPlugInEnvironment::createGenericEditor(INoxPlugIn& plugIn,
                                                                       void* parent) {
    return makesGenericEditor ? makesGenericEditor(plugIn, parent) : nullptr;
}

std::uint32_t NoxPlugInEnvironment::getValue(std::uint32_t key) const {
    const auto found = table.find(key);
    return found != table.end() ? found->second : 0;
}
