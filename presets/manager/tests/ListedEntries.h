// SPDX-License-Identifier: GPL-3.0-or-later
// A directory iterator over entries a test writes down, so that files can vanish, come in a certain
// order or never have been there.
#pragma once

#include "presets/manager/QMDirectoryIterator.h"

#include <map>
#include <utility>
#include <vector>

/// Name and whether it is a folder, by the folder's path.
using ListedEntries = std::map<std::string, std::vector<std::pair<std::string, bool>>>;

class ListedDirectoryIterator : public QMDirectoryIterator {
public:
    explicit ListedDirectoryIterator(ListedEntries listing)
        : all(std::move(listing)) {}

    void open(const std::string& path) override {
        entries = all[path];
        position = 0;
    }

    bool next() override { return position++ < entries.size(); }

    void current(std::string& name, bool& isDirectory) const override {
        name = entries[position - 1].first;
        isDirectory = entries[position - 1].second;
    }

    static DirectoryIteratorFactory factory(ListedEntries listing) {
        return [listing = std::move(listing)] {
            return std::make_unique<ListedDirectoryIterator>(listing);
        };
    }

private:
    ListedEntries all;
    std::vector<std::pair<std::string, bool>> entries;
    std::size_t position = 0;
};
