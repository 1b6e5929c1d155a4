// SPDX-License-Identifier: GPL-3.0-or-later
// The way from an editor to the plug-in instance it shows.
//
// How it crosses the threads. The editor lives on the message thread; hosts change, replace and
// remove instances on threads of their own. So whoever wants the instance holds it: as long as a
// hold lives, the environment's control lock is taken and the instance stays. An instance that goes
// away tells so while its host holds that lock; from then on every hold is empty, and the editor
// shows what it showed last until it is connected to the next instance.
//
// A hold is short. With one in hand nobody calls the host.
#pragma once

#include "plugin-model/NoxParameterHandler.h"

#include <cstdint>
#include <mutex>

class INoxPlugIn;
class INoxPlugInEnvironment;

class QMPlugInAccess final : private NoxParameterHandler {
public:
    class Hold {
    public:
        /// False when the instance is gone.
        explicit operator bool() const { return held != nullptr; }

        INoxPlugIn* operator->() const { return held; }

        INoxPlugIn& operator*() const { return *held; }

    private:
        friend class QMPlugInAccess;

        Hold(std::recursive_mutex& mutex, INoxPlugIn* const& instance)
            : lock(mutex)
            , held(instance) {}

        std::unique_lock<std::recursive_mutex> lock;
        INoxPlugIn* held;
    };

    /// The instance's environment, when it has one, must outlive this; the caller sees to it that
    /// the instance is there until this returns. [message thread]
    explicit QMPlugInAccess(INoxPlugIn& shown);
    ~QMPlugInAccess() override;
    QMPlugInAccess(const QMPlugInAccess&) = delete;
    QMPlugInAccess& operator=(const QMPlugInAccess&) = delete;

    /// Waits for whoever uses the instance now. [message thread]
    [[nodiscard]] Hold hold() const;

    /// Whether it is this instance, and still there. [message thread]
    [[nodiscard]] bool isOf(const INoxPlugIn* other) const;

    /// Taken before any other lock. [any thread but audio]
    [[nodiscard]] std::recursive_mutex& controlLock() const { return *control; }

    /// Null without one. [message thread]
    [[nodiscard]] INoxPlugInEnvironment* environment() const { return environment_; }

private:
    void plugInGoingAway() override { instance = nullptr; }

    INoxPlugInEnvironment* const environment_;
    mutable std::recursive_mutex own; ///< where there is no environment
    std::recursive_mutex* const control;
    INoxPlugIn* instance; ///< read and written with the control lock held
};
