// SPDX-License-Identifier: GPL-3.0-or-later
// The part of a host's object that every interface of the plug-in standard asks for. Such an object
// lives as long as its scope and counts who holds it, so that a test sees references left behind.
#pragma once

#include "brolt/library/tests/support/Vst3.h"

#include <atomic>
#include <tuple>

template <typename... Interfaces>
class HostObject : public Interfaces... {
public:
    HostObject() = default;
    virtual ~HostObject() = default;
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    Steinberg::tresult PLUGIN_API queryInterface(const Steinberg::TUID id, void** object) override {
        if (object == nullptr)
            return Steinberg::kInvalidArgument;
        *object = nullptr;
        if (same(id, Steinberg::getTUID<Steinberg::FUnknown>()))
            *object = static_cast<Steinberg::FUnknown*>(unknown());
        (offer<Interfaces>(id, object), ...);
        if (*object == nullptr)
            return Steinberg::kNoInterface;
        addRef();
        return Steinberg::kResultOk;
    }

    Steinberg::uint32 PLUGIN_API addRef() override { return ++held; }

    Steinberg::uint32 PLUGIN_API release() override { return --held; }

    /// How many references others hold.
    [[nodiscard]] Steinberg::uint32 references() const { return held; }

    /// The object as somebody takes it who asks for its interfaces himself.
    [[nodiscard]] Steinberg::FUnknown* unknown() {
        return static_cast<std::tuple_element_t<0, std::tuple<Interfaces...>>*>(this);
    }

private:
    static bool same(const Steinberg::TUID a, const Steinberg::TUID b) {
        return Steinberg::FUnknownPrivate::iidEqual(a, b);
    }

    template <typename Interface>
    void offer(const Steinberg::TUID id, void** object) {
        if (same(id, Steinberg::getTUID<Interface>()))
            *object = static_cast<Interface*>(this);
    }

    std::atomic<Steinberg::uint32> held{0};
};
