// SPDX-License-Identifier: GPL-3.0-or-later
// What the blend control moves: the blend of the snapshots, or one ordinary parameter in its place.
// A control that knows get, set, begin and end need not know which. [message thread]
#pragma once

#include <cstdint>
#include <functional>

class IQMBlendProxyOwner;

class QMSnapshotBlendParameterProxy {
public:
    /// In the place of a parameter index: the blend itself.
    static constexpr std::int32_t theBlend = -1;

    using ValueChanged = std::function<void(double value)>;

    /// The owner is told when the proxy goes, and outlives it.
    explicit QMSnapshotBlendParameterProxy(IQMBlendProxyOwner& proxyOwner,
                                           std::int32_t parameterIndex = theBlend);
    ~QMSnapshotBlendParameterProxy();
    QMSnapshotBlendParameterProxy(const QMSnapshotBlendParameterProxy&) = delete;
    QMSnapshotBlendParameterProxy& operator=(const QMSnapshotBlendParameterProxy&) = delete;

    /// The blend's first coordinate, whatever the proxy stands for; 0.5 without an instance.
    [[nodiscard]] double getValue() const;
    /// Moves the blend in single precision, or sets the parameter.
    void setValue(double value);
    void endEdit();
    void beginEdit();

    /// Who is told when the value changed elsewhere.
    void setValueChangedCallback(ValueChanged callback) { changed = std::move(callback); }

    /// For the owner, when automation or undo moved the blend.
    void tellValueChanged() const;

private:
    IQMBlendProxyOwner& owner;
    std::int32_t index;
    ValueChanged changed;
};
