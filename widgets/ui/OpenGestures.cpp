// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/OpenGestures.h"

#include "plugin-model/INoxPlugIn.h"
#include "widgets/base/IQMParameterController.h"
#include "widgets/ui/QMPlugInAccess.h"

#include <algorithm>
#include <utility>

void OpenGestures::begin(std::int32_t index, FourCharCode id, bool atHost) {
    open.push_back({index, id, atHost});
    if (const QMPlugInAccess::Hold plugIn = access.hold())
        plugIn->beginTouch(index);
}

void OpenGestures::end(std::int32_t index) {
    const auto found = std::find_if(open.begin(), open.end(), [index](const Gesture& gesture) {
        return gesture.index == index;
    });
    if (found == open.end())
        return;
    open.erase(found);
    if (const QMPlugInAccess::Hold plugIn = access.hold())
        plugIn->endTouch(index);
}

void OpenGestures::endAll(IQMParameterController* controller) {
    for (const Gesture& gesture : std::exchange(open, {})) {
        if (controller != nullptr && gesture.atHost)
            controller->endParameterGesture(gesture.id);
        if (const QMPlugInAccess::Hold plugIn = access.hold())
            plugIn->endTouch(gesture.index);
    }
}
