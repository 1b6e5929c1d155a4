// SPDX-License-Identifier: GPL-3.0-or-later
// The way a scan has come, so that links between folders do not lead it in circles.
#pragma once

#include "presets/manager/FileIdentity.h"

#include <map>
#include <string>

class FolderTrail {
    struct Visits {
        int count = 0;
        bool onTheWay = false;
    };

public:
    /// Deepest nesting of folders that is followed, the root included.
    static constexpr int deepest = 64;
    /// How often one folder is entered over different links. Between folders that link to each
    /// other there are ways whose number grows with the factorial of theirs.
    static constexpr int mostVisits = 16;

    /// One step into a folder (path in UTF-8) and, with its end, out again.
    class Step {
    public:
        Step(FolderTrail& of, const std::string& path);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

        /// False where the way led through this folder before, or is too long. [message thread]
        [[nodiscard]] bool isAllowed() const { return allowed; }

    private:
        FolderTrail& trail;
        Visits* visits = nullptr; ///< null for a folder that cannot be told from others
        bool allowed = false;
    };

private:
    std::map<FileIdentity, Visits> visitsOf;
    int depth = 0;
};
