// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3HostContext.h"

#include <public.sdk/source/vst/utility/stringconvert.h>

using namespace Steinberg;

tresult PLUGIN_API Vst3HostContext::getName(Vst::String128 name) {
    return VST3::StringConvert::convert("brolt-host", name) ? kResultOk : kInternalError;
}

tresult PLUGIN_API Vst3HostContext::queryInterface(const TUID interfaceID, void** object) {
#ifndef _WIN32
    if (FUnknownPrivate::iidEqual(interfaceID, Linux::IRunLoop::iid))
        return hostMessages.runLoop().queryInterface(interfaceID, object);
#endif
    return HostApplication::queryInterface(interfaceID, object);
}
