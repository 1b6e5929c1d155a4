// SPDX-License-Identifier: GPL-3.0-or-later
// What a VST3 host calls by name: the factory, and the functions that frame the library's use. A
// host may call the frame more than once, or not at all.

#include "QMShell/vst3/Vst3Factory.h"
#include "brolt/library/EntryPoints.h"
#include "brolt/library/QMBroltVst3.h"

#include <pluginterfaces/base/fplatform.h>

BROLT_ENTRY_POINT Steinberg::IPluginFactory* PLUGIN_API GetPluginFactory() {
    return vst3Factory(broltVst3Product());
}

namespace {

int frames = 0;

bool enter() {
    ++frames;
    return true;
}

bool leave() {
    if (frames == 0)
        return false;
    --frames;
    return true;
}

} // namespace

#ifdef _WIN32

BROLT_ENTRY_POINT bool InitDll() {
    return enter();
}

BROLT_ENTRY_POINT bool ExitDll() {
    return leave();
}

#else

BROLT_ENTRY_POINT bool ModuleEntry(void*) {
    return enter();
}

BROLT_ENTRY_POINT bool ModuleExit() {
    return leave();
}

#endif
