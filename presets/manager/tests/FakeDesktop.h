// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop with a recycle bin of the test's own, and no windows.
#pragma once

#include "presets/manager/IPresetDesktop.h"
#include "presets/record/Utf8Path.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// What happened on a FakeDesktop, which its manager owns.
struct DesktopLog {
    std::vector<std::string> trashed;
    std::vector<std::string> revealed;
    bool trashWorks = true;
};

class FakeDesktop : public IPresetDesktop {
public:
    FakeDesktop(DesktopLog& events, std::filesystem::path bin)
        : log(events)
        , trash(std::move(bin)) {}

    bool moveToTrash(const std::string& path) override {
        if (!log.trashWorks)
            return false;
        std::error_code error;
        std::filesystem::create_directories(trash, error);
        const std::filesystem::path source = pathFromUtf8(path);
        std::filesystem::rename(source, trash / source.filename(), error);
        if (!error)
            log.trashed.push_back(path);
        return !error;
    }

    void reveal(const std::string& path) override { log.revealed.push_back(path); }

private:
    DesktopLog& log;
    std::filesystem::path trash;
};
