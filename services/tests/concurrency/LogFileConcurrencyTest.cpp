// SPDX-License-Identifier: GPL-3.0-or-later
// Several threads logging at once: one opening, no lost message, whole lines in the second sink.
#include "services/LogFile.h"

#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <sstream>
#include <thread>
#include <vector>

namespace {

constexpr int threadCount = 4;
constexpr int messagesPerThread = 500;

/// Runs the work on every thread at once.
template <typename Work>
void onAllThreads(Work work) {
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([&ready, &work, t] {
            ++ready;
            while (ready.load() < threadCount)
                std::this_thread::yield();
            work(t);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

TEST(LogFileConcurrency, theSecondSinkGetsEveryLineWholeAndOnce) {
    const TemporaryDirectory directory;
    QM::LogFile log((directory / "test.log").string());
    const LogCapture capture(1, log);
    onAllThreads([&](int thread) {
        for (int i = 0; i < messagesPerThread; ++i)
            log.write(1, "thread %d message %d\n", thread, i);
    });

    std::set<std::string> expected;
    for (int t = 0; t < threadCount; ++t) {
        for (int i = 0; i < messagesPerThread; ++i)
            expected.insert(printed("thread %d message %d", t, i));
    }
    std::multiset<std::string> seen;
    const std::regex form(std::string(logPrefixPattern) + R"((thread \d+ message \d+))");
    std::istringstream lines(capture.text());
    std::smatch parts;
    for (std::string line; std::getline(lines, line);) {
        ASSERT_TRUE(std::regex_match(line, parts, form)) << line;
        seen.insert(parts[1]);
    }
    EXPECT_EQ(seen.size(), expected.size());
    EXPECT_EQ(std::set<std::string>(seen.begin(), seen.end()), expected);
}

TEST(LogFileConcurrency, theFileIsOpenedOnceAndLosesNoMessage) {
    const TemporaryDirectory directory;
    const auto path = directory / "test.log";
    {
        QM::LogFile log(path.string());
        // Without prefixes a message is a single write, which stays whole in the file too.
        log.suppressTimestamps();
        onAllThreads([&](int thread) {
            for (int i = 0; i < messagesPerThread; ++i)
                log.write(1, "%d:%d\n", thread, i);
        });
    }
    std::ifstream in(path);
    std::multiset<std::string> seen;
    for (std::string line; std::getline(in, line);)
        seen.insert(line);
    EXPECT_EQ(seen.size(), std::size_t{threadCount} * messagesPerThread);
    for (int t = 0; t < threadCount; ++t) {
        for (int i = 0; i < messagesPerThread; ++i)
            EXPECT_EQ(seen.count(printed("%d:%d", t, i)), 1u) << t << ":" << i;
    }
}

TEST(LogFileConcurrency, suppressionAndTheSinkMayChangeWhileOthersLog) {
    const TemporaryDirectory directory;
    QM::LogFile log((directory / "test.log").string());
    const LogCapture capture(1, log);
    onAllThreads([&](int thread) {
        for (int i = 0; i < messagesPerThread; ++i) {
            if (thread == 0) {
                log.suppressTimestamps();
                log.resumeTimestamps();
            } else if (thread == 1) {
                log.setMaximumLevel(i % 2 == 0 ? 1 : 4);
            } else {
                log.write(1, "x\n");
            }
        }
    });
    std::istringstream lines(capture.messages());
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        ASSERT_EQ(line, "x");
    EXPECT_EQ(count, (threadCount - 2) * messagesPerThread);
    EXPECT_TRUE(log.hasLogged());
}
