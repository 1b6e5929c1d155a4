// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/base/QMGenericParameterTargetHolder.h"

#include <algorithm>

void QMGenericParameterTargetHolder::addParameterTarget(QMGenericParameterTarget* target) {
    if (target != nullptr && std::find(targets.begin(), targets.end(), target) == targets.end())
        targets.push_back(target);
}

void QMGenericParameterTargetHolder::removeParameterTarget(const QMGenericParameterTarget* target) {
    std::erase(targets, target);
}
