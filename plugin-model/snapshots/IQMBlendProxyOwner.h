// SPDX-License-Identifier: GPL-3.0-or-later
// What a blend proxy needs of the editor that made it. [message thread]
#pragma once

#include <cstdint>

class INoxPlugIn;
class QMSnapshotBlendParameterProxy;

class IQMBlendProxyOwner {
public:
    virtual ~IQMBlendProxyOwner() = default;

    /// Null while no instance is connected.
    [[nodiscard]] virtual INoxPlugIn* blendedPlugIn() = 0;
    /// The editor's ordinary road of a change: instance and host.
    virtual void setProxiedParameter(std::int32_t index, double value) = 0;
    virtual void touchProxiedParameter(std::int32_t index) = 0;
    virtual void releaseProxiedParameter(std::int32_t index) = 0;
    /// The proxy is being destroyed: the owner's reference to it is void.
    virtual void blendProxyGone(QMSnapshotBlendParameterProxy& proxy) = 0;
};
