// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PortableDirectoryIterator.h"

#include "presets/record/Utf8Path.h"

#include <filesystem>
#include <juce_core/juce_core.h>
#include <system_error>

struct PortableDirectoryIterator::Listing {
    explicit Listing(const juce::File& folder)
        : position(folder, false, "*", juce::File::findFilesAndDirectories) {}

    juce::RangedDirectoryIterator position;
    bool started = false;
};

PortableDirectoryIterator::PortableDirectoryIterator() = default;
PortableDirectoryIterator::~PortableDirectoryIterator() = default;

void PortableDirectoryIterator::open(const std::string& path) {
    const auto here = juce::File::getCurrentWorkingDirectory();
    listing = std::make_unique<Listing>(here.getChildFile(juce::String::fromUTF8(path.c_str())));
}

bool PortableDirectoryIterator::next() {
    if (listing == nullptr)
        return false;
    if (listing->started && listing->position != juce::RangedDirectoryIterator())
        ++listing->position;
    listing->started = true;
    return listing->position != juce::RangedDirectoryIterator();
}

void PortableDirectoryIterator::current(std::string& name, bool& isDirectory) const {
    const juce::DirectoryEntry& entry = *listing->position;
    const juce::File file = entry.getFile();
    name = file.getFileName().toStdString();
    // The toolkit takes sockets and block devices for folders, whose type shares a bit with theirs.
    std::error_code ignored;
    isDirectory =
        entry.isDirectory() &&
        std::filesystem::is_directory(pathFromUtf8(file.getFullPathName().toStdString()), ignored);
}

DirectoryIteratorFactory PortableDirectoryIterator::factory() {
    return [] { return std::make_unique<PortableDirectoryIterator>(); };
}
