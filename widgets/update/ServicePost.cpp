// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/ServicePost.h"

#include "services/update/UpdateReply.h"
#include "widgets/update/PostsUnderWay.h"

#include <juce_core/juce_core.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <thread>

namespace {

constexpr int connectionTimeoutMs = 4000;
constexpr std::chrono::seconds longestPost(10);
constexpr int success = 200;

juce::String fromUtf8(const std::string& text) {
    return juce::String::fromUTF8(text.data(), static_cast<int>(text.size()));
}

juce::URL formOf(const std::string& address, const QM::UpdateParameters& parameters) {
    juce::URL url = juce::URL::createWithoutParsing(fromUtf8(address));
    for (const QM::UpdateParameter& parameter : parameters)
        url = url.withParameter(fromUtf8(parameter.name), fromUtf8(parameter.value));
    return url;
}

/// One question and its reply. The toolkit's stream blocks its thread until something comes, and
/// cancelling it from another one may block as well, for as long as the system looks up a name. So
/// a second thread reads, and the one that asked watches over it.
class Post {
public:
    Post(const std::string& address, const QM::UpdateParameters& parameters)
        : stream(formOf(address, parameters), true) {
        stream.withConnectionTimeout(connectionTimeoutMs);
        // Followed, a redirection would lose the form, and perhaps the encryption.
        stream.withNumRedirectsToFollow(0);
    }

    std::optional<std::string> run(const std::stop_token& stop) {
        bool isInTime = false;
        {
            const std::jthread reader([this] { read(); });
            isInTime = waitForEnd(stop);
            if (!isInTime)
                stream.cancel();
        }
        return isInTime ? reply : std::nullopt;
    }

private:
    bool waitForEnd(const std::stop_token& stop) {
        std::unique_lock lock(mutex);
        return ended.wait_for(lock, stop, longestPost, [this] { return hasEnded; });
    }

    void read() {
        std::optional<std::string> text;
        try {
            if (stream.connect(nullptr) && stream.getStatusCode() == success)
                text = readBody();
        } catch (...) {
            text.reset();
        }
        const std::scoped_lock lock(mutex);
        reply = std::move(text);
        hasEnded = true;
        ended.notify_all();
    }

    std::optional<std::string> readBody() {
        std::string body;
        std::array<char, 4096> part{};
        while (body.size() <= QM::largestUpdateReply) {
            const int length = stream.read(part.data(), static_cast<int>(part.size()));
            if (length <= 0)
                return stream.isError() ? std::nullopt : std::optional(body);
            body.append(part.data(), static_cast<std::size_t>(length));
        }
        return std::nullopt;
    }

    juce::WebInputStream stream;
    std::mutex mutex;
    std::condition_variable_any ended;
    bool hasEnded = false;
    std::optional<std::string> reply;
};

} // namespace

std::optional<std::string> postToService(const std::string& address,
                                         const QM::UpdateParameters& parameters,
                                         const std::stop_token& stop) {
    auto post = std::make_unique<Post>(address, parameters);
    // After the system's client has started and until it has been put away.
    const PostsUnderWay::Entry entry;
    std::stop_source either;
    const auto stopNow = [&either] { either.request_stop(); };
    const std::stop_callback whenAsked(stop, stopNow);
    const std::stop_callback atExit(entry.stop(), stopNow);
    std::optional<std::string> reply = post->run(either.get_token());
    post.reset();
    return reply;
}
