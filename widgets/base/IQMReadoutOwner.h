// SPDX-License-Identifier: GPL-3.0-or-later
// A control that has a readout of its value beside it. [message thread]
#pragma once

class QMWidget;

class IQMReadoutOwner {
public:
    virtual ~IQMReadoutOwner() = default;

    /// Shows what the control shows; not owned. Null takes it away.
    virtual void setReadout(QMWidget* readout) = 0;
    [[nodiscard]] virtual QMWidget* readout() const = 0;
};
