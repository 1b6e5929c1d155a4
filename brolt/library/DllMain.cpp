// SPDX-License-Identifier: GPL-3.0-or-later
// Windows tells the library its handle. The toolkit's windows belong to the library, not to the
// program that loaded it: their class would outlive the code otherwise.

#ifdef _WIN32

#    include <juce_core/juce_core.h>

#    include <windows.h>

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        juce::Process::setCurrentModuleInstanceHandle(instance);
    return TRUE;
}

#endif
