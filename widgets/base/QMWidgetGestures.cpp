// SPDX-License-Identifier: GPL-3.0-or-later
// Gestures: what brackets the values of one movement of the user's, for the host's automation and
// for undo.
#include "widgets/base/IQMParameterController.h"
#include "widgets/base/QMWidget.h"

#include <cstdio>

void QMWidget::beginTouch(std::uint32_t slot) {
    const std::uint32_t count = getNumParameterSlots();
    if (slot >= count)
        return;
    slotTouches.resize(count, 0);
    ++touchCount;
    if (++slotTouches[slot] != 1)
        return;
    const FourCharCode id = getParameterID(slot);
    if (usesController(slot))
        parameterController->beginParameterGesture(id);
    else if (QMGenericParameterTarget* const target = parameterTarget())
        target->beginTouch(id);
    if (gestureListener)
        gestureListener(slot, GesturePhase::begin, *this);
}

void QMWidget::endTouch(std::uint32_t slot) {
    const std::uint32_t count = getNumParameterSlots();
    if (slot >= count)
        return;
    slotTouches.resize(count, 0);
    const std::int32_t left = --slotTouches[slot];
    if (left < 0)
        std::printf("Error: param[%d] touches = %d\n", static_cast<int>(slot), left);
    if (--touchCount < 0)
        std::printf("Error: widget touches = %d\n", touchCount);
    // Below 0 nothing had begun that could end.
    if (left != 0)
        return;
    flushPendingOutput();
    const FourCharCode id = getParameterID(slot);
    if (usesController(slot))
        parameterController->endParameterGesture(id);
    else if (QMGenericParameterTarget* const target = parameterTarget())
        target->endTouch(id);
    if (gestureListener)
        gestureListener(slot, GesturePhase::end, *this);
}

bool QMWidget::isTouched(std::uint32_t slot) const {
    return slot < slotTouches.size() ? slotTouches[slot] != 0 : touchCount != 0;
}

bool QMWidget::pressIsTaken(const juce::MouseEvent& event) {
    const FourCharCode id = getParameterID(0);
    if (id == noParameter)
        return false;
    for (QMGenericParameterTarget* const target : parameterTargets()) {
        if (target->takesClick(id))
            return true;
    }
    return usesController(0) && parameterController->handleParameterMouseDown(id, event.mods);
}

void QMWidget::writeAsGesture(std::uint32_t slot, double value) {
    const SafePointer<QMWidget> self(this);
    beginTouch(slot);
    if (self != nullptr)
        writeDisplayValue(slot, value, true);
    if (self != nullptr)
        endTouch(slot);
}
