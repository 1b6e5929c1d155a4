// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit, a service that answers what the test wants, and replies.
#pragma once

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/update/QMUpdateCheckWidget.h"
#include "widgets/update/tests/support/ServiceStub.h"

namespace Replies {
inline constexpr const char* update = R"({"updateAvailable": true, "updateVersion": "1.2.3",
                                          "updateURL": "https://quolm.example/setup.exe"})";
inline constexpr const char* noUpdate = R"({"updateAvailable": false, "updateVersion": "1.2.3",
                                            "updateURL": "https://quolm.example/setup.exe"})";
} // namespace Replies

class UpdateTest : public ToolkitTest {
protected:
    /// Until every question has been answered and what there was to tell has been told.
    static bool settle() {
        return runLoopUntil([] { return !UpdateChecks::isAnyThreadRunning(); }) &&
               runPendingMessages();
    }

    /// A widget for a product that nobody has asked for yet, with the answer that it gets.
    std::unique_ptr<QMUpdateCheckWidget> widgetTold(const std::string& reply) {
        service.setReply(reply);
        auto widget =
            std::make_unique<QMUpdateCheckWidget>("Product " + juce::String(++productNumber));
        EXPECT_TRUE(settle());
        widget->setSize(255, 12);
        return widget;
    }

    ServiceStub service;

private:
    int productNumber = 0;
};
