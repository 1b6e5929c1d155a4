// SPDX-License-Identifier: GPL-3.0-or-later
// What the environment answers about time, and how it asks the host's providers.
#include "QMShell/hosting/NoxPlugInEnvironment.h"

namespace {

/// A provider that is not installed leaves the field as it is.
template <typename Provider, typename Field>
void ask(const Provider& provider, Field& field) {
    if (provider)
        field = provider();
}

} // namespace

void NoxPlugInEnvironment::setValuesFG(std::uint64_t f, std::uint64_t g) {
    time.valueF = f;
    time.valueG = g;
}

void NoxPlugInEnvironment::setTimeSignature(std::uint32_t numerator, std::uint32_t denominator) {
    time.timeSignature = {numerator, denominator};
}

void NoxPlugInEnvironment::setTransportFlag(std::uint32_t bit, bool set) {
    if (bit >= description.transportFlags.size())
        return;
    const std::uint64_t mask = std::uint64_t{1} << bit;
    time.flags = set ? time.flags | mask : time.flags & ~mask;
}

void NoxPlugInEnvironment::askProviders(std::uint64_t request) {
    ask(description.sampleRate, time.sampleRate);
    ask(description.position, time.position);
    if ((request & NoxTimeRequest::transportFlags) != 0) {
        for (std::uint32_t bit = 0; bit < description.transportFlags.size(); ++bit) {
            if (description.transportFlags[bit])
                setTransportFlag(bit, (description.transportFlags[bit]() & 1u) != 0);
        }
    }
    if ((request & NoxTimeRequest::valueE) != 0)
        ask(description.valueE, time.valueE);
    if ((request & NoxTimeRequest::valuePairFG) != 0 && description.valuePairFG) {
        const auto [f, g] = description.valuePairFG();
        setValuesFG(f, g);
    }
    if ((request & NoxTimeRequest::tempo) != 0)
        ask(description.tempo, time.tempo);
    if ((request & NoxTimeRequest::timeSignature) != 0)
        ask(description.timeSignature, time.timeSignature);
}

void NoxPlugInEnvironment::getTimeInfo(NoxTimeInfo& info) {
    if (description.enabled)
        askProviders(info.flags);
    info = time;
}
