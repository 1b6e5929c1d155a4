// SPDX-License-Identifier: GPL-3.0-or-later
//
// Who the host is, for the plug-ins that ask it.

#pragma once

#include "tools/brolt-host/vst3/HostMessages.h"

#include <public.sdk/source/vst/hosting/hostclasses.h>

/// Must outlive every plug-in that it was handed to: nobody owns it. [message thread]
class Vst3HostContext : public Steinberg::Vst::HostApplication {
public:
    Steinberg::tresult PLUGIN_API getName(Steinberg::Vst::String128 name) override;
    /// On Linux the run loop as well.
    Steinberg::tresult PLUGIN_API queryInterface(const Steinberg::TUID interfaceID,
                                                 void** object) override;

    [[nodiscard]] HostMessages& messages() { return hostMessages; }

private:
    HostMessages hostMessages;
};
