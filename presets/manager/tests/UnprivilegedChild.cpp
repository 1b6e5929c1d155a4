// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/tests/UnprivilegedChild.h"

#ifndef _WIN32

#    include <csignal>
#    include <cstdio>
#    include <stdexcept>
#    include <sys/resource.h>
#    include <sys/wait.h>
#    include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;

bool inChild(const std::function<bool()>& prepare, const std::function<bool()>& body) {
    std::fflush(nullptr); // or the child writes again what is buffered here
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("cannot fork");
    if (child == 0) {
        bool answer = false;
        try {
            answer = prepare() && body();
        } catch (const std::exception& error) {
            std::fprintf(stderr, "in the child: %s\n", error.what());
        }
        _exit(answer ? 0 : 1);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        throw std::runtime_error("lost the child");
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

bool inUnprivilegedChild(const std::function<bool()>& body) {
    return inChild([] { return geteuid() != 0 || (setegid(nobody) == 0 && seteuid(nobody) == 0); },
                   body);
}

bool inChildWithFullDisk(unsigned long largestFile, const std::function<bool()>& body) {
    return inChild(
        [largestFile] {
            const rlimit limit{largestFile, largestFile};
            return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &limit) == 0;
        },
        body);
}

void giveToUnprivilegedChild(const std::filesystem::path& path) {
    if (geteuid() == 0 && lchown(path.c_str(), nobody, nobody) != 0)
        throw std::runtime_error("cannot give away " + path.string());
}

#endif
