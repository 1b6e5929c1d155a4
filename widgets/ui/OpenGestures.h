// SPDX-License-Identifier: GPL-3.0-or-later
// The gestures that an editor's widgets have open, as the plug-in instance knows them: each holds
// its parameter there, which makes one undo group of what it does. An editor may go while the user
// still holds a control; nothing must stay open then. [message thread]
#pragma once

#include "plugin-model/FourCharCode.h"

#include <cstdint>
#include <vector>

class IQMParameterController;
class QMPlugInAccess;

class OpenGestures {
public:
    /// The access must outlive it.
    explicit OpenGestures(const QMPlugInAccess& accessToInstance)
        : access(accessToInstance) {}

    /// atHost: the widget has told the host by its controller.
    void begin(std::int32_t index, FourCharCode id, bool atHost);
    /// Nothing when it had not begun.
    void end(std::int32_t index);
    /// At the instance, and by the controller, where there is one, those that the host knows of.
    void endAll(IQMParameterController* controller);

    [[nodiscard]] bool empty() const { return open.empty(); }

private:
    struct Gesture {
        std::int32_t index;
        FourCharCode id;
        bool atHost;
    };

    const QMPlugInAccess& access;
    std::vector<Gesture> open;
};
