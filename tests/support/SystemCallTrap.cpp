// SPDX-License-Identifier: GPL-3.0-or-later
//
// The child process and its filter.

#include "tests/support/SystemCallTrap.h"

#include <csignal>
#include <cstddef>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int finishedStatus = 0;
constexpr int trappedStatus = 1;
constexpr int unavailableStatus = 2;

/// Shared with the child.
long* trappedCall = nullptr;

void onTrap(int, siginfo_t* info, void*) {
    *trappedCall = info->si_syscall;
    _exit(trappedStatus);
}

bool installFilter() {
    struct sigaction action = {};
    action.sa_sigaction = onTrap;
    action.sa_flags = SA_SIGINFO;
    if (sigaction(SIGSYS, &action, nullptr) != 0)
        return false;

    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, arch)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AUDIT_ARCH_X86_64, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_exit_group, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP),
    };
    const sock_fprog program{sizeof filter / sizeof filter[0], filter};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

[[noreturn]] void runChild(const std::function<void()>& body) {
    if (!installFilter())
        _exit(unavailableStatus);
    body();
    _exit(finishedStatus);
}

} // namespace

SystemCallReport runWithoutSystemCalls(const std::function<void()>& body) {
    SystemCallReport report;
    void* const shared =
        mmap(nullptr, sizeof(long), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        return report;
    trappedCall = static_cast<long*>(shared);
    *trappedCall = -1;

    const pid_t child = fork();
    if (child == 0)
        runChild(body);

    int status = 0;
    if (child > 0 && waitpid(child, &status, 0) == child) {
        report.available = !(WIFEXITED(status) && WEXITSTATUS(status) == unavailableStatus);
        report.finished = WIFEXITED(status) && WEXITSTATUS(status) == finishedStatus;
        report.systemCall = *trappedCall;
        report.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
    munmap(shared, sizeof(long));
    trappedCall = nullptr;
    return report;
}
