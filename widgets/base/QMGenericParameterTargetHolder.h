// SPDX-License-Identifier: GPL-3.0-or-later
// The targets of a control. The first one given is the one values are read from and written to.
// [message thread]
#pragma once

#include "widgets/notifications/QMGenericParameterTarget.h"

#include <vector>

class QMGenericParameterTargetHolder {
public:
    virtual ~QMGenericParameterTargetHolder() = default;

    /// Not owned; once only. Null is ignored.
    void addParameterTarget(QMGenericParameterTarget* target);
    void removeParameterTarget(const QMGenericParameterTarget* target);

    /// A copy: a target may come or go while somebody walks the list.
    [[nodiscard]] std::vector<QMGenericParameterTarget*> parameterTargets() const {
        return targets;
    }

    /// Null without a target.
    [[nodiscard]] QMGenericParameterTarget* parameterTarget() const {
        return targets.empty() ? nullptr : targets.front();
    }

private:
    std::vector<QMGenericParameterTarget*> targets;
};
