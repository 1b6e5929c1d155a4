// SPDX-License-Identifier: GPL-3.0-or-later
//
// The detectors themselves: each kind of planted violation is seen, and harmless code is not.

#include "tests/support/AudioThreadGuard.h"

#include "tests/support/SystemCallTrap.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <malloc.h>
#include <mutex>
#include <new>
#include <semaphore.h>
#include <shared_mutex>
#include <string>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

/// Keeps the compiler from leaving out an allocation that nobody looks at.
void* volatile sink;

void keep(void* block) {
    sink = block;
}

/// A null pointer that the compiler does not know to be one.
void* volatile nothing = nullptr;

/// As the sink, for a result.
volatile long outcome;

struct alignas(64) Aligned {
    char bytes[64];
};

struct Planted {
    const char* function; ///< the first one to be reported
    std::function<void()> violation;
};

std::vector<Planted> plantedAllocations() {
    return {
        {"malloc", [] { keep(std::malloc(100)), std::free(sink); }},
        {"calloc", [] { keep(std::calloc(10, 10)), std::free(sink); }},
        {"realloc", [] { keep(std::realloc(nothing, 100)), std::free(sink); }},
        {"reallocarray", [] { keep(reallocarray(nullptr, 10, 10)), std::free(sink); }},
        {"aligned_alloc", [] { keep(std::aligned_alloc(64, 128)), std::free(sink); }},
        {"memalign", [] { keep(memalign(64, 100)), std::free(sink); }},
        {"posix_memalign",
         [] {
             void* block = nullptr;
             if (posix_memalign(&block, 64, 100) == 0)
                 keep(block), std::free(sink);
         }},
        {"free", [] { std::free(nothing); }},
        {"malloc", [] { keep(::operator new(100)), ::operator delete(sink); }},
        {"malloc", [] { keep(::operator new[](100)), ::operator delete[](sink); }},
        {"aligned_alloc",
         [] {
             auto* aligned = new Aligned;
             keep(aligned);
             delete aligned;
         }},
        {"malloc", [] { keep(std::vector<int>(1000).data()); }},
        {"malloc", [] { keep(std::string(1000, 'x').data()); }},
    };
}

std::vector<Planted> plantedLocks() {
    static std::mutex mutex;
    static std::timed_mutex timedMutex;
    static std::shared_mutex sharedMutex;
    static std::condition_variable condition;
    static std::once_flag once;
    static sem_t semaphore;
    sem_init(&semaphore, 0, 100);
    using namespace std::chrono_literals;
    return {
        {"pthread_mutex_lock", [] { const std::lock_guard lock(mutex); }},
        {"pthread_mutex_trylock", [] { const std::unique_lock lock(mutex, std::try_to_lock); }},
        {"pthread_mutex_clocklock", [] { const std::unique_lock lock(timedMutex, 1ms); }},
        {"pthread_rwlock_wrlock", [] { const std::lock_guard lock(sharedMutex); }},
        {"pthread_rwlock_rdlock", [] { const std::shared_lock lock(sharedMutex); }},
        {"pthread_cond_signal", [] { condition.notify_one(); }},
        {"pthread_cond_broadcast", [] { condition.notify_all(); }},
        {"pthread_once", [] { std::call_once(once, [] {}); }},
        {"sem_wait", [] { sem_wait(&semaphore); }},
        {"sem_post", [] { sem_post(&semaphore); }},
    };
}

std::vector<Planted> plantedSystemCalls() {
    using namespace std::chrono_literals;
    return {
        {"open", [] { outcome = open("/nowhere/at/all", O_RDONLY); }},
        {"write", [] { outcome = write(-1, "", 0); }},
        {"read", [] { outcome = read(-1, nullptr, 0); }},
        {"close", [] { close(-1); }},
        {"sched_yield", [] { std::this_thread::yield(); }},
        {"nanosleep", [] { std::this_thread::sleep_for(1ns); }},
        {"syscall", [] { syscall(SYS_getpid); }},
        {"fflush", [] { std::fflush(stderr); }},
        {"vfprintf", [] { std::fprintf(stderr, "%.*s", 0, "nothing"); }},
    };
}

void expectEachIsDetected(const std::vector<Planted>& plants) {
    for (const Planted& planted : plants) {
        const AudioThreadReport report = watchAudioThread(planted.violation);
        EXPECT_GE(report.violations, 1) << planted.function;
        EXPECT_STREQ(report.first, planted.function);
    }
}

} // namespace

TEST(AudioThreadGuard, detectsPlantedAllocations) {
    expectEachIsDetected(plantedAllocations());
}

TEST(AudioThreadGuard, detectsPlantedLocks) {
    expectEachIsDetected(plantedLocks());
}

TEST(AudioThreadGuard, detectsPlantedSystemCalls) {
    expectEachIsDetected(plantedSystemCalls());
}

TEST(AudioThreadGuard, countsEveryViolationAndNamesTheFirst) {
    const AudioThreadReport report = watchAudioThread([] {
        keep(std::calloc(1, 1));
        std::free(sink);
        keep(std::malloc(1));
        std::free(sink);
    });
    EXPECT_EQ(report.violations, 4);
    EXPECT_STREQ(report.first, "calloc");
}

TEST(AudioThreadGuard, passesArithmetic) {
    volatile float value = 1.0F;
    const AudioThreadReport report = watchAudioThread([&] { value = value * 2.0F; });
    EXPECT_EQ(report.violations, 0);
    EXPECT_STREQ(report.first, "");
}

TEST(AudioThreadGuard, watchesOnlyWhileItIsAlive) {
    EXPECT_EQ(watchAudioThread([] {}).violations, 0);
    keep(std::malloc(1));
    std::free(sink);
    EXPECT_EQ(watchAudioThread([] {}).violations, 0);
}

TEST(AudioThreadGuard, watchesItsOwnThreadOnly) {
    std::atomic<bool> go{false};
    std::atomic<bool> done{false};
    std::thread other([&] {
        while (!go.load())
            std::this_thread::yield();
        std::vector<int> allocated(100);
        done.store(allocated.size() == 100);
    });
    const AudioThreadReport report = watchAudioThread([&] {
        go.store(true);
        while (!done.load()) {
        }
    });
    other.join();
    EXPECT_EQ(report.violations, 0);
}

TEST(AudioThreadGuard, anInnerGuardsViolationCountsForTheOuterOne) {
    int inner = 0;
    const AudioThreadReport outer = watchAudioThread([&] {
        inner = watchAudioThread([] { keep(std::malloc(1)); }).violations;
        std::free(sink);
    });
    EXPECT_EQ(inner, 1);
    EXPECT_EQ(outer.violations, 2);
}

TEST(AudioThreadGuard, theInterposedFunctionsStillDoTheirWork) {
    void* block = nullptr;
    EXPECT_EQ(posix_memalign(&block, 3, 10), EINVAL);
    EXPECT_EQ(posix_memalign(&block, 4096, 10), 0);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 4096, 0U);
    std::free(block);
    volatile std::size_t everything = SIZE_MAX;
    EXPECT_EQ(reallocarray(nullptr, everything, 2), nullptr);

    std::mutex mutex;
    std::condition_variable condition;
    bool ready = false;
    std::thread other([&] {
        const std::lock_guard lock(mutex);
        ready = true;
        condition.notify_one();
    });
    std::unique_lock lock(mutex);
    EXPECT_TRUE(condition.wait_for(lock, std::chrono::seconds(30), [&] { return ready; }));
    lock.unlock();
    other.join();
}

TEST(SystemCallTrap, letsAPureComputationFinish) {
    const SystemCallReport report = runWithoutSystemCalls([] { outcome = 1; });
    if (!report.available)
        GTEST_SKIP() << "this kernel or container does not allow system call filters";
    EXPECT_TRUE(report.finished);
    EXPECT_EQ(report.systemCall, -1);
    EXPECT_EQ(report.signal, 0);
}

TEST(SystemCallTrap, stopsAtAPlantedSystemCallAndTellsItsNumber) {
    const SystemCallReport report = runWithoutSystemCalls([] {
        long result = SYS_getppid;
        asm volatile("syscall" : "+a"(result) : : "rcx", "r11", "memory");
    });
    if (!report.available)
        GTEST_SKIP() << "this kernel or container does not allow system call filters";
    EXPECT_FALSE(report.finished);
    EXPECT_EQ(report.systemCall, SYS_getppid);
}

TEST(SystemCallTrap, stopsAtALargeAllocation) {
    const SystemCallReport report = runWithoutSystemCalls([] { keep(std::malloc(64U << 20U)); });
    if (!report.available)
        GTEST_SKIP() << "this kernel or container does not allow system call filters";
    EXPECT_FALSE(report.finished);
    EXPECT_TRUE(report.systemCall == SYS_mmap || report.systemCall == SYS_brk) << report.systemCall;
}

TEST(SystemCallTrap, tellsTheSignalOfACrash) {
    const SystemCallReport report = runWithoutSystemCalls([] { __builtin_trap(); });
    if (!report.available)
        GTEST_SKIP() << "this kernel or container does not allow system call filters";
    EXPECT_FALSE(report.finished);
    EXPECT_EQ(report.systemCall, -1);
    EXPECT_EQ(report.signal, SIGILL);
}
