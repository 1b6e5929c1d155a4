// SPDX-License-Identifier: GPL-3.0-or-later
//
// A temporary folder with files in it.

#include "tests/sources/TemporaryTree.h"

#include <fstream>
#include <random>
#include <stdexcept>

namespace fs = std::filesystem;

TemporaryTree::TemporaryTree() {
    std::random_device random;
    // create_directory answers false for a folder that exists: take the next name then.
    do {
        root_ = fs::temp_directory_path() / ("brolt-tests-" + std::to_string(random()));
    } while (!fs::create_directory(root_));
}

TemporaryTree::~TemporaryTree() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
}

void TemporaryTree::write(const std::string& path, const std::string& text) const {
    const fs::path file = root_ / path;
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}
