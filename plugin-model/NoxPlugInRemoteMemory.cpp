// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's buffers in its processing host's memory.
#include "plugin-model/NoxPlugIn.h"

#include "plugin-model/INoxPlugInProcessingHost.h"
#include "services/Log.h"

void* NoxPlugIn::allocateRemoteBuffer(std::size_t size, const char* name) {
    if (host_ == nullptr)
        return nullptr;
    void* address = host_->allocateRemoteBlock(size, name);
    if (address != nullptr)
        remoteBuffers.insert(address);
    return address;
}

void NoxPlugIn::freeRemoteBuffer(void* address) {
    if (host_ != nullptr)
        host_->freeRemoteBlock(address);
    remoteBuffers.erase(address);
}

NoxResult NoxPlugIn::writeRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                                       const void* source) {
    if (host_ == nullptr)
        return NoxResultCode::noHostAvailable;
    return host_->writeRemoteBlock(address, offset, length, source);
}

NoxResult NoxPlugIn::readRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                                      void* destination) {
    if (host_ == nullptr)
        return NoxResultCode::noHostAvailable;
    return host_->readRemoteBlock(address, offset, length, destination);
}

NoxResult NoxPlugIn::readPlugInData(std::size_t offset, std::size_t length, void* destination) {
    if (host_ == nullptr)
        return NoxResultCode::noHostAvailable;
    return host_->readPlugInData(*this, remoteID, offset, length, destination);
}

void NoxPlugIn::allocateAnalysisBuffer() {
    if (wantsAnalysisBuffer && analysisBuffer == nullptr)
        analysisBuffer = allocateRemoteBuffer(0, "Analysis Collection Buffer");
}

void NoxPlugIn::freeAnalysisBuffer() {
    if (analysisBuffer == nullptr)
        return;
    freeRemoteBuffer(analysisBuffer);
    analysisBuffer = nullptr;
}

void NoxPlugIn::detachFromHost() {
    freeAnalysisBuffer();
    if (remoteBuffers.empty())
        return;
    if (host_ != nullptr) {
        QM::log(QM::LogLevel::error,
                "NoxPlugIn: Error: Derived Class failed to remove all Remote Buffers\n");
        for (void* address : remoteBuffers)
            host_->freeRemoteBlock(address);
    } else {
        QM::log(QM::LogLevel::error,
                "NoxPlugIn: Error: Remote Buffers not removed before Host was disconnected\n");
    }
    remoteBuffers.clear();
}
