// SPDX-License-Identifier: GPL-3.0-or-later
// What the maker's service is asked: form fields, whose names, values and order it knows.
#pragma once

#include "services/update/PlugInInterface.h"

#include <cstdint>
#include <string>
#include <vector>

namespace QM {

inline constexpr const char* updateServiceAddress = "https://quolm.example/qmshell/versioncheck";

struct UpdateParameter {
    std::string name;
    std::string value; ///< UTF-8, not escaped

    bool operator==(const UpdateParameter&) const = default;
};

using UpdateParameters = std::vector<UpdateParameter>;

/// What is told of the computer.
struct MachineFacts {
    std::string operatingSystem; ///< its name
    std::int32_t memoryMegabytes = 0;
    std::int32_t cores = 0;
    std::int32_t megahertz = 0;
};

/// The fields of an editor's question. The product's name in UTF-8; empty for "Tessaly". Version
/// and build are placeholders, and the platform is "win" on every system: this is what the service
/// has always been asked, and all that it looks at is the product. [any thread]
[[nodiscard]] UpdateParameters versionCheckParameters(const std::string& productName,
                                                      const MachineFacts& machine,
                                                      PlugInInterface loadedThrough);

} // namespace QM
