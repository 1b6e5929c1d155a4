// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/PostsUnderWay.h"

#include <chrono>

PostsUnderWay& PostsUnderWay::get() {
    static PostsUnderWay all;
    return all;
}

PostsUnderWay::~PostsUnderWay() {
#ifndef _WIN32
    constexpr std::chrono::seconds patience(5);
    exiting.request_stop();
    std::unique_lock lock(mutex);
    noneLeft.wait_for(lock, patience, [this] { return count == 0; });
#endif
}

PostsUnderWay::Entry::Entry() {
    PostsUnderWay& all = get();
    const std::scoped_lock lock(all.mutex);
    ++all.count;
}

PostsUnderWay::Entry::~Entry() {
    PostsUnderWay& all = get();
    const std::scoped_lock lock(all.mutex);
    if (--all.count == 0)
        all.noneLeft.notify_all();
}

std::stop_token PostsUnderWay::Entry::stop() const {
    return get().exiting.get_token();
}
