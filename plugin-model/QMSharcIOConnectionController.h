// SPDX-License-Identifier: GPL-3.0-or-later
// The controller for SHARC hosts, whose connection matrix is told every connection.
#pragma once

#include "plugin-model/QMIOConnectionController.h"

class INoxPlugIn;

class QMSharcIOConnectionController : public QMIOConnectionController {
public:
    QMSharcIOConnectionController(INoxPlugIn& owner, std::int32_t input, std::int32_t output,
                                  std::int32_t transfer)
        : plugIn(owner)
        , inputCode(input)
        , outputCode(output)
        , transferCode(transfer) {}

    void outputConnected(std::int32_t output, std::int32_t slot) override;
    void inputConnected(std::int32_t input, std::int32_t slot) override;
    void transfer(Packet& block, std::int32_t pairCount, const QMTransferPair* pairs) override;

    void setInputCode(std::int32_t code) override { inputCode = code; }

    void setOutputCode(std::int32_t code) override { outputCode = code; }

    void setTransferCode(std::int32_t code) override { transferCode = code; }

private:
    void sendConnection(std::int32_t code, std::int32_t channel, std::int32_t slot);

    INoxPlugIn& plugIn;
    std::int32_t inputCode;
    std::int32_t outputCode;
    std::int32_t transferCode;
};
