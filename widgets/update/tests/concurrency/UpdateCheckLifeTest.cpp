// SPDX-License-Identifier: GPL-3.0-or-later
// Questions for updates and the editors that come and go while they are asked.
#include "widgets/update/tests/support/UpdateTest.h"

#include <chrono>
#include <optional>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using UpdateCheckLife = UpdateTest;

constexpr const char* notice = "Update available: v1.2.3";

} // namespace

TEST_F(UpdateCheckLife, AsksOnAThreadOfItsOwnAndTellsOnTheMessageThread) {
    service.setReply(Replies::update);
    const QMUpdateCheckWidget widget("Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    EXPECT_EQ(service.getThreadName(), "QM Update Check");
    // The reply waits for the message loop's turn, however long it has been there.
    while (UpdateChecks::isAnyThreadRunning())
        std::this_thread::yield();
    EXPECT_EQ(widget.getNotice(), "");
    EXPECT_TRUE(runPendingMessages());
    EXPECT_EQ(widget.getNotice(), notice);
}

TEST_F(UpdateCheckLife, SaysWhatTheServiceWantsToKnow) {
    const QMUpdateCheckWidget widget("Brolt");
    const QMUpdateCheckWidget nameless;
    ASSERT_TRUE(service.waitForQuestions(2));
    const QM::MachineFacts machine = {juce::SystemStats::getOperatingSystemName().toStdString(),
                                      juce::SystemStats::getMemorySizeInMegabytes(),
                                      juce::SystemStats::getNumCpus(),
                                      juce::SystemStats::getCpuSpeedInMegahertz()};
    const auto ofProduct = [&](const char* product) {
        return QM::versionCheckParameters(product, machine, QM::PlugInInterface::vst3);
    };
    const auto questions = service.getQuestions();
    const bool namedCameFirst = questions[0][1].value == "Brolt";
    EXPECT_EQ(questions[namedCameFirst ? 0 : 1], ofProduct("Brolt"));
    EXPECT_EQ(questions[namedCameFirst ? 1 : 0], ofProduct("Tessaly"));
    EXPECT_GT(machine.memoryMegabytes, 0);
    EXPECT_GT(machine.cores, 0);
}

TEST_F(UpdateCheckLife, AWidgetThatGoesDoesNotWaitForTheNetwork) {
    service.setReply(Replies::update);
    service.hold();
    std::optional<QMUpdateCheckWidget> widget(std::in_place, "Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    EXPECT_FALSE(service.isAskedToStop());
    const auto begin = Clock::now();
    widget.reset();
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(1));
    EXPECT_GE(Clock::now() - begin, std::chrono::milliseconds(UpdateChecks::patienceMs));
    EXPECT_TRUE(service.isAskedToStop());
    EXPECT_TRUE(UpdateChecks::isAnyThreadRunning());
    service.letGo();
    EXPECT_TRUE(settle());
    EXPECT_FALSE(UpdateChecks::isAnyThreadRunning());
}

TEST_F(UpdateCheckLife, AnAnswerThatCameTooLateIsForTheNextEditor) {
    service.setReply(Replies::update);
    service.hold();
    std::optional<QMUpdateCheckWidget> widget(std::in_place, "Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    widget.reset();
    service.letGo();
    EXPECT_TRUE(settle());
    widget.emplace("Brolt");
    EXPECT_EQ(widget->getNotice(), notice);
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, AnAnswerThatCameTooLateIsForAnEditorThatHasOpenedMeanwhile) {
    service.setReply(Replies::update);
    service.hold();
    std::optional<QMUpdateCheckWidget> first(std::in_place, "Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    first.reset();
    const QMUpdateCheckWidget second("Brolt");
    service.letGo();
    EXPECT_TRUE(settle());
    EXPECT_EQ(second.getNotice(), notice);
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, AQuestionThatIsBeingStoppedIsNotAskedOnceMore) {
    service.hold();
    for (int i = 0; i < 3; ++i) {
        const QMUpdateCheckWidget widget("Brolt");
        ASSERT_TRUE(service.waitForQuestions(1));
    }
    EXPECT_EQ(service.getUnderWay(), 1);
    service.letGo();
    EXPECT_TRUE(settle());
    const QMUpdateCheckWidget widget("Brolt");
    EXPECT_TRUE(settle());
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, AWidgetThatGoesBeforeItsMessageComesIsNotTold) {
    service.setReply(Replies::update);
    std::optional<QMUpdateCheckWidget> widget(std::in_place, "Brolt");
    while (UpdateChecks::isAnyThreadRunning())
        std::this_thread::yield();
    widget.reset();
    EXPECT_TRUE(runPendingMessages());
    widget.emplace("Brolt");
    EXPECT_EQ(widget->getNotice(), notice);
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, ASecondWidgetGetsTheAnswerThatIsThere) {
    service.setReply(Replies::update);
    const QMUpdateCheckWidget first("Brolt");
    ASSERT_TRUE(settle());
    service.setReply(Replies::noUpdate);
    const QMUpdateCheckWidget second("Brolt");
    EXPECT_EQ(second.getNotice(), notice);
    EXPECT_FALSE(UpdateChecks::isAnyThreadRunning());
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, WidgetsOfAProductShareAQuestionThatGoesOnUntilTheLastHasGone) {
    service.setReply(Replies::update);
    service.hold();
    std::optional<QMUpdateCheckWidget> first(std::in_place, "Brolt");
    const QMUpdateCheckWidget second("Brolt");
    const QMUpdateCheckWidget third("Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    first.reset();
    EXPECT_FALSE(service.isAskedToStop());
    service.letGo();
    EXPECT_TRUE(settle());
    EXPECT_EQ(second.getNotice(), notice);
    EXPECT_EQ(third.getNotice(), notice);
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, EachProductHasAQuestionOfItsOwn) {
    service.setReply(Replies::update);
    const QMUpdateCheckWidget first("Brolt");
    const QMUpdateCheckWidget second("Another");
    const QMUpdateCheckWidget none;
    EXPECT_TRUE(settle());
    EXPECT_EQ(service.getQuestionCount(), 3U);
    EXPECT_EQ(none.getNotice(), notice);
}

TEST_F(UpdateCheckLife, WhatFailedIsNotTriedAgain) {
    service.setReply(std::nullopt);
    for (int i = 0; i < 3; ++i) {
        const QMUpdateCheckWidget widget("Brolt");
        EXPECT_TRUE(settle());
        EXPECT_EQ(widget.getNotice(), "");
    }
    service.setReply("<html>");
    for (int i = 0; i < 3; ++i) {
        const QMUpdateCheckWidget widget("Another");
        EXPECT_TRUE(settle());
        EXPECT_EQ(widget.getNotice(), "");
    }
    EXPECT_EQ(service.getQuestionCount(), 2U);
}

TEST_F(UpdateCheckLife, WhatIsThrownInTheThreadStaysInIt) {
    service.setThrows();
    const QMUpdateCheckWidget widget("Brolt");
    EXPECT_TRUE(settle());
    EXPECT_EQ(widget.getNotice(), "");
}

TEST_F(UpdateCheckLife, TheToolkitGoesWhenTheLastThreadHasEnded) {
    service.hold();
    std::optional<QMUpdateCheckWidget> widget(std::in_place, "Brolt");
    ASSERT_TRUE(service.waitForQuestions(1));
    widget.reset();
    const std::jthread network([this] { service.letGo(); });
    shutDownToolkit();
    EXPECT_EQ(service.getUnderWay(), 0);
    EXPECT_FALSE(UpdateChecks::isAnyThreadRunning());
}

TEST_F(UpdateCheckLife, AnswersOutliveTheToolkit) {
    service.setReply(Replies::update);
    std::optional<QMUpdateCheckWidget> widget(std::in_place, "Brolt");
    ASSERT_TRUE(settle());
    widget.reset();
    shutDownToolkit();
    startToolkit();
    widget.emplace("Brolt");
    EXPECT_EQ(widget->getNotice(), notice);
    EXPECT_EQ(service.getQuestionCount(), 1U);
}

TEST_F(UpdateCheckLife, AThousandEditorsInARowStartOneThread) {
    service.setReply(std::nullopt);
    for (int i = 0; i < 1000; ++i)
        const QMUpdateCheckWidget widget("Brolt");
    EXPECT_TRUE(settle());
    EXPECT_EQ(service.getQuestionCount(), 1U);
}
