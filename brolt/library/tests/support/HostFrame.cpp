// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/HostFrame.h"

#include "brolt/library/tests/support/HostWait.h"

using Steinberg::tresult;

bool HostFrame::driveUntil(const std::function<bool()>& condition,
                           std::chrono::milliseconds limit) {
#ifndef _WIN32
    if (lends == Loop::lent)
        return loop.driveUntil(condition, limit);
#endif
    return waitUntil(condition, limit);
}

void HostFrame::drive() {
    (void)driveUntil([turns = 0]() mutable { return turns++ > 0; });
}

bool HostFrame::isLetGo() const {
#ifndef _WIN32
    if (loop.references() != 0 || loop.descriptors() != 0 || loop.timers() != 0)
        return false;
#endif
    return references() == 0;
}

tresult PLUGIN_API HostFrame::queryInterface(const Steinberg::TUID id, void** object) {
#ifndef _WIN32
    if (lends == Loop::lent &&
        Steinberg::FUnknownPrivate::iidEqual(id, Steinberg::Linux::IRunLoop::iid))
        return loop.queryInterface(id, object);
#endif
    return HostObject::queryInterface(id, object);
}

tresult PLUGIN_API HostFrame::resizeView(Steinberg::IPlugView* view, Steinberg::ViewRect* newSize) {
    if (view == nullptr || newSize == nullptr)
        return Steinberg::kInvalidArgument;
    requests.push_back({newSize->getWidth(), newSize->getHeight()});
    return view->onSize(newSize);
}
