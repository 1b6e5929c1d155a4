// SPDX-License-Identifier: GPL-3.0-or-later
// Lists a folder with the toolkit: files and folders, hidden ones included, and links as what they
// lead to. Names that are no valid UTF-8 come out as the toolkit writes them, which no file has:
// what they name cannot be opened.
#pragma once

#include "presets/manager/QMDirectoryIterator.h"

class PortableDirectoryIterator : public QMDirectoryIterator {
public:
    PortableDirectoryIterator();
    ~PortableDirectoryIterator() override;

    /// A relative path starts from the current directory.
    void open(const std::string& path) override;
    bool next() override;
    void current(std::string& name, bool& isDirectory) const override;

    /// What the product gives its preset managers. [message thread]
    [[nodiscard]] static DirectoryIteratorFactory factory();

private:
    struct Listing;
    std::unique_ptr<Listing> listing;
};
