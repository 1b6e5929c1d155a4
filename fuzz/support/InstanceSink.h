// SPDX-License-Identifier: GPL-3.0-or-later
// Sets imported values as the VST3 adapter does, without a host that is told of them.
#pragma once

#include "QMShell/state/IStateEntrySink.h"
#include "brolt/model/QMBrolt_PlugIn.h"

class InstanceSink : public IStateEntrySink {
public:
    explicit InstanceSink(QMBrolt_PlugIn& instance)
        : plugIn(instance) {}

    int entries = 0;

    void restoreParameter(FourCharCode identifier, double storedValue) override {
        ++entries;
        const std::int32_t index = plugIn.indexOfID(identifier);
        const double normalised = plugIn.plainToNormalised(index, storedValue);
        plugIn.setParameterValue(index, plugIn.normalisedToPlain(index, normalised));
    }

private:
    QMBrolt_PlugIn& plugIn;
};
