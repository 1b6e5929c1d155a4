// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMPlugInAccess.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/INoxPlugInEnvironment.h"

QMPlugInAccess::QMPlugInAccess(INoxPlugIn& shown)
    : NoxParameterHandler(&shown)
    , environment_(shown.environment())
    , control(environment_ == nullptr ? &own : &environment_->controlLock())
    , instance(&shown) {
    if (environment_ == nullptr)
        return;
    const std::scoped_lock lock(*control);
    environment_->addListener(*this);
}

QMPlugInAccess::~QMPlugInAccess() {
    if (environment_ == nullptr)
        return;
    const std::scoped_lock lock(*control);
    environment_->removeListener(*this);
}

QMPlugInAccess::Hold QMPlugInAccess::hold() const {
    return {*control, instance};
}

bool QMPlugInAccess::isOf(const INoxPlugIn* other) const {
    const Hold held = hold();
    return held && &*held == other;
}
