// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/update/PlugInInterface.h"

#include <atomic>

namespace {

std::atomic<QM::PlugInInterface> loaded{QM::PlugInInterface::vst3};

} // namespace

const char* QM::textOf(PlugInInterface plugInInterface) {
    switch (plugInInterface) {
    case PlugInInterface::vst2:
        return "vst2";
    case PlugInInterface::aax:
        return "aax";
    case PlugInInterface::vst3:
        break;
    }
    return "vst3";
}

void QM::setLoadedInterface(PlugInInterface plugInInterface) {
    loaded = plugInInterface;
}

QM::PlugInInterface QM::loadedInterface() {
    return loaded;
}
