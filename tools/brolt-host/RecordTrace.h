// SPDX-License-Identifier: GPL-3.0-or-later
//
// Writes down which coefficient records the processor worked with and from when on, so that two
// platforms, two hosts or two versions can be compared bit for bit. A line is the frame at which
// the first block with the record begins, in decimal, and the record's eighteen 32-bit words, each
// as eight hexadecimal digits, separated by single blanks.

#pragma once

#include "brolt/signal/Coefficients.h"
#include "tools/brolt-host/ReplacedFile.h"

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

/// One line of a trace, with its line end. [any thread]
std::string recordTraceLine(std::int64_t frame, const Coefficients& record);

class RecordTrace {
public:
    /// Throws HostError when the file cannot be made (see ReplacedFile).
    explicit RecordTrace(const std::filesystem::path& file);

    /// To be told after every block: its first frame and the record it used. [message thread]
    void note(std::int64_t frame, const Coefficients& record);

    /// Closes the complete file, still under its temporary name. Throws HostError when it could not
    /// be written. [message thread]
    void finish();

    /// Gives it its name. Throws HostError when the system refuses. [message thread]
    void commit() { output.commit(); }

private:
    ReplacedFile output;
    std::ofstream stream; ///< goes before `output`: Windows does not remove open files
    std::optional<std::int32_t> versionInUse;
};
