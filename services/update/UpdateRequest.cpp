// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/update/UpdateRequest.h"

namespace {

constexpr const char* defaultProduct = "Tessaly";

} // namespace

QM::UpdateParameters QM::versionCheckParameters(const std::string& productName,
                                                const MachineFacts& machine,
                                                PlugInInterface loadedThrough) {
    return {
        {"request", "versioncheck"},
        {"product", productName.empty() ? defaultProduct : productName},
        {"version", "CUR_VERS"},
        {"build", "CUR_BUILD"},
        {"64bit", "YES"},
        {"OS", machine.operatingSystem},
        {"mem", std::to_string(machine.memoryMegabytes)},
        {"cpus", std::to_string(machine.cores)},
        {"cpuspeed", std::to_string(machine.megahertz)},
        {"os_platform", "win"},
        {"plugin_platform", textOf(loadedThrough)},
    };
}
