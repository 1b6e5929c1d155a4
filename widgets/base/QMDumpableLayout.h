// SPDX-License-Identifier: GPL-3.0-or-later
// An editor that can print its layout as the table it is built from. [message thread]
#pragma once

#include <string>

class QMDumpableLayout {
public:
    virtual ~QMDumpableLayout() = default;

    /// The table of control areas as C++ text, rectangles in design units.
    [[nodiscard]] virtual std::string layoutDump() const = 0;
    /// Prints it to the standard output.
    virtual void dumpLayout() const = 0;
};
