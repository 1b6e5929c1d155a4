// SPDX-License-Identifier: GPL-3.0-or-later
// A message made of a function: the shortest way to run something on the message thread.
#pragma once

#include "widgets/notifications/QMPortableMessage.h"

#include <memory>
#include <utility>

template <typename F>
class QMAsyncPortableLambdaMessage final : public QMPortableMessage {
public:
    explicit QMAsyncPortableLambdaMessage(F functionToCall)
        : function(std::move(functionToCall)) {}

    void messageCallback() override { function(); }

private:
    F function;
};

/// [any thread]
template <typename F>
[[nodiscard]] std::unique_ptr<QMPortableMessage> makeLambdaMessage(F function) {
    return std::make_unique<QMAsyncPortableLambdaMessage<F>>(std::move(function));
}
