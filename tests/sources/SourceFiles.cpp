// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finds and reads the C++ sources of a checkout.

#include "tests/sources/SourceFiles.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace fs = std::filesystem;

std::vector<std::string> findSourceFiles(const fs::path& root) {
    std::vector<std::string> files;
    for (auto entry = fs::recursive_directory_iterator(root);
         entry != fs::recursive_directory_iterator(); ++entry) {
        const std::string relative = entry->path().lexically_relative(root).generic_string();
        if (entry->is_directory()) {
            if (entry->path().filename().string().starts_with('.') || relative == "build") {
                entry.disable_recursion_pending();
            }
            continue;
        }
        if (relative.ends_with(".h") || relative.ends_with(".cpp")) {
            files.push_back(relative);
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::vector<std::string> readLines(const fs::path& file) {
    std::ifstream stream(file);
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}
