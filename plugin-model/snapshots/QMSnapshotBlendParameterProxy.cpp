// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/snapshots/QMSnapshotBlendParameterProxy.h"

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/snapshots/IQMBlendProxyOwner.h"

namespace {

constexpr std::int32_t axisX = 0;
constexpr std::int32_t axisY = 1;

} // namespace

QMSnapshotBlendParameterProxy::QMSnapshotBlendParameterProxy(IQMBlendProxyOwner& proxyOwner,
                                                             std::int32_t parameterIndex)
    : owner(proxyOwner)
    , index(parameterIndex) {}

QMSnapshotBlendParameterProxy::~QMSnapshotBlendParameterProxy() {
    owner.blendProxyGone(*this);
}

double QMSnapshotBlendParameterProxy::getValue() const {
    constexpr double middle = 0.5;
    const INoxPlugIn* const plugIn = owner.blendedPlugIn();
    return plugIn != nullptr ? static_cast<double>(plugIn->blendValue(axisX)) : middle;
}

void QMSnapshotBlendParameterProxy::setValue(double value) {
    if (index != theBlend)
        owner.setProxiedParameter(index, value);
    else if (INoxPlugIn* const plugIn = owner.blendedPlugIn())
        plugIn->setBlend(static_cast<float>(value), plugIn->blendValue(axisY));
}

void QMSnapshotBlendParameterProxy::beginEdit() {
    if (INoxPlugIn* const plugIn = owner.blendedPlugIn())
        plugIn->beginBlendGesture();
    if (index != theBlend)
        owner.touchProxiedParameter(index);
}

void QMSnapshotBlendParameterProxy::endEdit() {
    if (index != theBlend)
        owner.releaseProxiedParameter(index);
    if (INoxPlugIn* const plugIn = owner.blendedPlugIn())
        plugIn->endBlendGesture();
}

void QMSnapshotBlendParameterProxy::tellValueChanged() const {
    if (changed)
        changed(getValue());
}
