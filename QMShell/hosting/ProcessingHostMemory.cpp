// SPDX-License-Identifier: GPL-3.0-or-later
// The processing host's remote blocks, reading an instance's state back, and analysis traffic.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"

#include "plugin-model/ControlMessages.h"
#include "plugin-model/INoxPlugIn.h"
#include "services/Log.h"

#include <algorithm>
#include <cstring>
#include <new>

void* QMShellPlugInProcessingHost::allocateRemoteBlock(std::size_t size, const char* name) {
    // One byte at least: the address is the block's identity.
    std::unique_ptr<std::byte[]> memory(new (std::nothrow)
                                            std::byte[std::max<std::size_t>(size, 1)]{});
    if (memory == nullptr)
        return nullptr;
    void* address = memory.get();
    remoteBlocks[address] = {std::move(memory), size, name != nullptr ? name : ""};
    return address;
}

void QMShellPlugInProcessingHost::freeRemoteBlock(void* address) {
    remoteBlocks.erase(address);
}

NoxResult QMShellPlugInProcessingHost::writeRemoteBlock(void* address, std::size_t offset,
                                                        std::size_t length, const void* source) {
    const auto found = remoteBlocks.find(address);
    if (found == remoteBlocks.end())
        return NoxResultCode::noHostAvailable;
    const RemoteBlock& block = found->second;
    if (offset > block.size || length > block.size - offset)
        return NoxResultCode::notEnoughRemoteMemory;
    if (length > 0)
        std::memcpy(block.memory.get() + offset, source, length);
    return NoxResultCode::noError;
}

NoxResult QMShellPlugInProcessingHost::readRemoteBlock(void* address, std::size_t offset,
                                                       std::size_t length, void* destination) {
    const auto found = remoteBlocks.find(address);
    if (found == remoteBlocks.end())
        return NoxResultCode::noHostAvailable;
    const RemoteBlock& block = found->second;
    const std::size_t available = block.size - std::min(offset, block.size);
    if (offset > block.size || length > available)
        QM::log(QM::LogLevel::error, "Requested Length extends past remote block; truncating!\n");
    const std::size_t copied = std::min(length, available);
    if (copied > 0)
        std::memcpy(destination, block.memory.get() + offset, copied);
    return NoxResultCode::noError;
}

NoxResult QMShellPlugInProcessingHost::readPlugInData(INoxPlugIn& plugIn, std::uint64_t,
                                                      std::size_t offset, std::size_t length,
                                                      void* destination) {
    const auto* data = static_cast<const std::byte*>(plugIn.processingData());
    if (data == nullptr)
        return NoxResultCode::instanceNotFound;
    const std::size_t size = plugIn.processingDataSize();
    const std::size_t available = size - std::min(offset, size);
    const std::size_t copied = std::min(length, available);
    if (copied > 0)
        std::memcpy(destination, data + offset, copied);
    return NoxResultCode::noError;
}

NoxResult QMShellPlugInProcessingHost::sendCoefficients(std::uint32_t, INoxPlugIn&, std::uint64_t,
                                                        std::uint32_t, const void*) {
    return NoxResultCode::noHostAvailable;
}

NoxResult QMShellPlugInProcessingHost::sendMessage(std::uint32_t, INoxPlugIn&, std::uint64_t,
                                                   std::uint32_t, const void*) {
    return NoxResultCode::noHostAvailable;
}

NoxResult QMShellPlugInProcessingHost::announceTransfer(std::uint32_t, INoxPlugIn&, std::uint64_t,
                                                        std::int32_t, const std::int32_t*) {
    return NoxResultCode::noError;
}

NoxResult QMShellPlugInProcessingHost::fetchInputCopy(INoxPlugIn& plugIn, std::uint64_t,
                                                      std::uint32_t wordOffset,
                                                      std::uint32_t wordCount, void* destination) {
    // The message makes the instance write a whole snapshot; a caller that asks for a stretch of it
    // must not get more than its buffer holds.
    const std::uint32_t snapshotWords = plugIn.analysisWordCount();
    const std::uint32_t first = std::min(wordOffset, snapshotWords);
    const std::uint32_t count = std::min(wordCount, snapshotWords - first);
    const std::size_t bytes = std::size_t{count} * sizeof(float);
    if (bytes == 0)
        return NoxResultCode::noHostAvailable;
    // Starts as what the caller has, which stays when the instance has no processing state.
    std::vector<float> snapshot(snapshotWords);
    std::memcpy(snapshot.data() + first, destination, bytes);
    Packet message(Packet::messageKind, sizeof(NoxBufferMessage));
    const NoxBufferMessage content{NoxMessage::analysisRequest, 0, snapshot.data()};
    std::memcpy(message.data, &content, sizeof content);
    plugIn.handleMessage(message);
    std::memcpy(destination, snapshot.data() + first, bytes);
    return NoxResultCode::noHostAvailable;
}

NoxResult QMShellPlugInProcessingHost::fetchAnalysisData(INoxPlugIn& plugIn, std::uint64_t,
                                                         void* request) {
    constexpr std::int32_t mostChannels = 16;
    constexpr std::size_t headerBytes = 8;
    constexpr std::size_t bytesPerChannel = 8192;
    std::int32_t channels = 0;
    std::memcpy(&channels, request, sizeof channels);
    // A count outside of what any processor has is a damaged request and gets the header alone.
    if (channels < 0 || channels > mostChannels)
        channels = 0;
    analysisTransfer.resize(headerBytes + static_cast<std::size_t>(channels) * bytesPerChannel);

    Packet message(Packet::messageKind, sizeof(NoxBufferMessage));
    const NoxBufferMessage content{NoxMessage::analysisTransfer, 1, analysisTransfer.data()};
    std::memcpy(message.data, &content, sizeof content);
    plugIn.handleMessage(message);
    return NoxResultCode::noError;
}
