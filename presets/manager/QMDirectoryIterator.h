// SPDX-License-Identifier: GPL-3.0-or-later
// Lists one folder, not what is below it. The preset manager makes one for each folder it reads, so
// that tests can show it a disk that changes under its eyes.
#pragma once

#include <functional>
#include <memory>
#include <string>

class QMDirectoryIterator {
public:
    QMDirectoryIterator() = default;
    virtual ~QMDirectoryIterator() = default;
    QMDirectoryIterator(const QMDirectoryIterator&) = delete;
    QMDirectoryIterator& operator=(const QMDirectoryIterator&) = delete;

    /// Begins a listing (path in UTF-8). A folder that cannot be read is an empty one.
    /// [message thread]
    virtual void open(const std::string& path) = 0;
    /// Goes to the first or next entry; false when there is none. [message thread]
    virtual bool next() = 0;
    /// The entry: its name in UTF-8, and whether it is a folder. To be called after a next() that
    /// answered true. [message thread]
    virtual void current(std::string& name, bool& isDirectory) const = 0;
};

using DirectoryIteratorFactory = std::function<std::unique_ptr<QMDirectoryIterator>()>;
