// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3RunLoop.h"

#ifdef _WIN32

std::shared_ptr<IHostRunLoop> runLoopOfHost(Steinberg::FUnknown*) {
    return nullptr;
}

#else

#    include <pluginterfaces/gui/iplugview.h>

#    include <map>
#    include <utility>

using namespace Steinberg;

namespace {

class DescriptorHandler final : public Linux::IEventHandler {
public:
    explicit DescriptorHandler(std::function<void()> function)
        : onReadable(std::move(function)) {
        FUNKNOWN_CTOR
    }

    virtual ~DescriptorHandler() { FUNKNOWN_DTOR }

    void PLUGIN_API onFDIsSet(Linux::FileDescriptor) override {
        if (onReadable)
            onReadable();
    }

    /// A host may keep the handler for longer than it was asked to.
    void forget() { onReadable = nullptr; }

    DECLARE_FUNKNOWN_METHODS

private:
    std::function<void()> onReadable;
};

IMPLEMENT_FUNKNOWN_METHODS(DescriptorHandler, Linux::IEventHandler, Linux::IEventHandler::iid)

class Vst3RunLoop final : public IHostRunLoop {
public:
    explicit Vst3RunLoop(IPtr<Linux::IRunLoop> hostLoop)
        : loop(std::move(hostLoop)) {}

    bool watch(int descriptor, std::function<void()> onReadable) override {
        const auto handler = owned(new DescriptorHandler(std::move(onReadable)));
        if (loop->registerEventHandler(handler, descriptor) != kResultOk)
            return false;
        handlers[descriptor] = handler;
        return true;
    }

    void unwatch(int descriptor) override {
        const auto found = handlers.find(descriptor);
        if (found == handlers.end())
            return;
        loop->unregisterEventHandler(found->second);
        found->second->forget();
        handlers.erase(found);
    }

private:
    IPtr<Linux::IRunLoop> loop;
    std::map<int, IPtr<DescriptorHandler>> handlers;
};

} // namespace

std::shared_ptr<IHostRunLoop> runLoopOfHost(FUnknown* context) {
    Linux::IRunLoop* loop = nullptr;
    if (context == nullptr ||
        context->queryInterface(Linux::IRunLoop::iid, reinterpret_cast<void**>(&loop)) != kResultOk)
        return nullptr;
    return std::make_shared<Vst3RunLoop>(owned(loop));
}

#endif
