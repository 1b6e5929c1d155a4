// SPDX-License-Identifier: GPL-3.0-or-later
// Posts that are under way when the process exits, with instances and editors still there, as many
// hosts do. The system's HTTP client is put away by the exit while it is in use, so the exit first
// stops the posts and waits for them, a few seconds at most. On Windows the system has ended all
// other threads by then.
#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>

class PostsUnderWay {
public:
    /// A post from its beginning to its end.
    class Entry {
    public:
        /// To be made when the system's client has been started: what is made later is put away
        /// earlier. [any thread]
        Entry();
        ~Entry();
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

        /// Asks to stop when the process exits. [any thread]
        [[nodiscard]] std::stop_token stop() const;
    };

    PostsUnderWay(const PostsUnderWay&) = delete;
    PostsUnderWay& operator=(const PostsUnderWay&) = delete;

private:
    PostsUnderWay() = default;
    ~PostsUnderWay();

    static PostsUnderWay& get();

    std::stop_source exiting;
    std::mutex mutex;
    std::condition_variable noneLeft;
    int count = 0;
};
