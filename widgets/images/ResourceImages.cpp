// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/ResourceImages.h"

#include "services/Log.h"
#include "widgets/images/ImageDecoding.h"
#include "widgets/images/ResourceFolder.h"

#include <cstdint>
#include <future>
#include <map>
#include <span>
#include <system_error>
#include <utility>

namespace {

/// Holds the pictures, which the toolkit's cache alone would forget a few seconds after the last
/// editor has closed. Goes with the toolkit.
class DecodedImages final : private juce::DeletedAtShutdown {
public:
    static DecodedImages& get() {
        if (instance == nullptr)
            instance = new DecodedImages;
        return *instance;
    }

    static void retryFailed() {
        if (instance != nullptr)
            std::erase_if(instance->images,
                          [](const auto& entry) { return entry.second.isNull(); });
    }

    /// The picture of this key; made, logged under this name when that fails, if there is none yet.
    template <typename Decode>
    juce::Image find(juce::int64 key, const juce::String& name, const Decode& decode) {
        const auto known = images.find(key);
        if (known != images.end())
            return known->second;
        const auto begun = coming.find(key);
        const DecodedImage decoded = begun == coming.end() ? decode() : begun->second.get();
        if (begun != coming.end())
            coming.erase(begun);
        if (decoded.problem != nullptr)
            QM::log(QM::LogLevel::error, "Image %s: %s\n", name.toRawUTF8(), decoded.problem);
        juce::ImageCache::addImageToCache(decoded.image, key);
        images.emplace(key, decoded.image);
        return decoded.image;
    }

    /// On a thread that may outlive this call, not this object.
    template <typename Decode>
    void begin(juce::int64 key, Decode decode) {
        if (images.contains(key) || coming.contains(key))
            return;
        try {
            coming.emplace(key, std::async(std::launch::async, std::move(decode)));
        } catch (const std::system_error&) {
            // No thread to be had: it will be decoded when it is asked for.
        }
    }

private:
    DecodedImages() = default;

    ~DecodedImages() override { instance = nullptr; }

    static DecodedImages* instance;
    std::map<juce::int64, juce::Image> images;               ///< null images are those that failed
    std::map<juce::int64, std::future<DecodedImage>> coming; ///< waits for its thread when it goes
};

DecodedImages* DecodedImages::instance = nullptr;

DecodedImage decodeFile(const juce::File& file) {
    if (!file.existsAsFile())
        return {.image = {}, .problem = "no such file"};
    if (file.getSize() > ImageLimits::fileBytes)
        return {.image = {}, .problem = "too large"};
    juce::MemoryBlock content;
    if (!file.loadFileAsData(content))
        return {.image = {}, .problem = "cannot be read"};
    return decodeImage({static_cast<const std::uint8_t*>(content.getData()), content.getSize()});
}

/// FNV-1a, 64 bits. Not the address: a block of data may be gone, and another be in its place.
juce::int64 keyOf(std::span<const std::uint8_t> data) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const std::uint8_t byte : data)
        hash = (hash ^ byte) * 0x100000001b3;
    return static_cast<juce::int64>(hash);
}

} // namespace

juce::Image loadResourceImage(const juce::String& name) {
    const juce::File file = resourceFile(name);
    return DecodedImages::get().find(file.hashCode64(), file.getFullPathName(),
                                     [&file] { return decodeFile(file); });
}

void prefetchResourceImages(std::initializer_list<const char*> names) {
    for (const char* const name : names) {
        const juce::File file = resourceFile(name);
        DecodedImages::get().begin(file.hashCode64(), [file] { return decodeFile(file); });
    }
}

juce::Image imageFromMemory(const void* data, std::size_t size) {
    const std::span<const std::uint8_t> bytes(static_cast<const std::uint8_t*>(data), size);
    return DecodedImages::get().find(keyOf(bytes), "in memory",
                                     [bytes] { return decodeImage(bytes); });
}

void retryFailedImages() {
    DecodedImages::retryFailed();
}
