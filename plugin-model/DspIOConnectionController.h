// SPDX-License-Identifier: GPL-3.0-or-later
// The controller for DSP hosts and for the native host, where connections need no telling.
#pragma once

#include "plugin-model/QMIOConnectionController.h"

class INoxPlugIn;

class DspIOConnectionController : public QMIOConnectionController {
public:
    explicit DspIOConnectionController(INoxPlugIn& owner)
        : plugIn(owner) {}

    void outputConnected(std::int32_t, std::int32_t) override {}

    void inputConnected(std::int32_t, std::int32_t) override {}

    /// With pairs, what they do not cover is zeroed.
    void transfer(Packet& block, std::int32_t pairCount, const QMTransferPair* pairs) override;

    void setInputCode(std::int32_t) override {}

    void setOutputCode(std::int32_t) override {}

    void setTransferCode(std::int32_t) override {}

private:
    INoxPlugIn& plugIn;
};
