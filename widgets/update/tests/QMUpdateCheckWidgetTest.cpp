// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/QMUpdateCheckWidget.h"

#include "tests/support/toolkit/TestWindow.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/statics/tests/LinkRecorder.h"
#include "widgets/statics/tests/PictureOf.h"
#include "widgets/update/tests/support/UpdateTest.h"

namespace {

constexpr const char* setup = "https://quolm.example/setup.exe";
constexpr juce::Point<float> middle(127.0f, 6.0f);

/// Something behind the widget for clicks to go to.
class Panel final : public juce::Component, public QMParentColorSource {
public:
    Panel() { setSize(255, 12); }
};

std::string replyWith(const std::string& more) {
    return R"({"updateAvailable": true)" + (more.empty() ? "" : ", " + more) + "}";
}

std::string replyWithLink(const std::string& link) {
    return replyWith(R"("updateVersion": "1.2.3", "updateURL": ")" + link + '"');
}

/// Without a panel the text is black.
juce::Image pictureOnWhite(juce::Component& component) {
    return pictureOf(component, juce::Colours::white);
}

juce::Rectangle<int> inkOnWhite(juce::Component& component) {
    return inkOf(pictureOnWhite(component), juce::Colours::white);
}

class UpdateWidgetTest : public UpdateTest {
protected:
    juce::String noticeFor(const std::string& reply) { return widgetTold(reply)->getNotice(); }

    /// Draws nothing, takes no clicks and no keys, and is nothing to a screen reader.
    static void expectNothingThere(QMUpdateCheckWidget& widget) {
        EXPECT_EQ(widget.getNotice(), "");
        EXPECT_TRUE(inkOnWhite(widget).isEmpty());
        EXPECT_FALSE(widget.isAccessible());
        EXPECT_FALSE(widget.canTakeKeyboardFocus());
        EXPECT_FALSE(widget.getWantsKeyboardFocus());
        TestWindow window(widget);
        EXPECT_EQ(window.getComponentAt(middle), &window);
    }

    const LinkRecorder links;
};

} // namespace

TEST_F(UpdateWidgetTest, SaysWhichVersionThereIs) {
    EXPECT_EQ(noticeFor(Replies::update), "Update available: v1.2.3");
}

TEST_F(UpdateWidgetTest, MarksABeta) {
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "2.0", "isbeta": true)")),
              "Update available: v2.0 (beta)");
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "2.0", "isbeta": false)")),
              "Update available: v2.0");
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "2.0", "isbeta": "yes")")),
              "Update available: v2.0");
}

TEST_F(UpdateWidgetTest, DoesNotWriteTheVTwice) {
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "v2.0")")), "Update available: v2.0");
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "V2.0")")), "Update available: V2.0");
}

TEST_F(UpdateWidgetTest, KeepsAVersionToOneShortLine) {
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": "\n2.0\tb1\u0007")")),
              "Update available: v2.0 b1");
    EXPECT_EQ(noticeFor(replyWith(R"("updateVersion": ")" + std::string(1000, '1') + '"')),
              "Update available: v" + juce::String::repeatedString("1", 32));
}

TEST_F(UpdateWidgetTest, IsNotThereBeforeAnAnswerHasCome) {
    service.setReply(Replies::update);
    service.hold();
    QMUpdateCheckWidget widget("Brolt");
    widget.setSize(255, 12);
    widget.setName("Update Check");
    expectNothingThere(widget);
}

TEST_F(UpdateWidgetTest, IsNotThereWithoutAnUpdate) {
    for (const std::string& reply :
         {std::string(Replies::noUpdate), std::string("{}"), std::string("[]"), std::string(),
          std::string(R"({"updateAvailable": "true", "updateVersion": "2.0"})"),
          std::string(R"({"updateAvailable": 1, "updateURL": "https://quolm.example/"})"),
          std::string(Replies::update, 40), std::string("<html>Not found</html>"),
          replyWith(R"("a": ")" + std::string(65536, 'a') + R"(", "updateVersion": "2.0")")}) {
        SCOPED_TRACE(reply.substr(0, 80));
        expectNothingThere(*widgetTold(reply));
    }
}

TEST_F(UpdateWidgetTest, IsNotThereForAnUpdateOfWhichNothingIsKnown) {
    expectNothingThere(*widgetTold(replyWith("")));
    expectNothingThere(*widgetTold(replyWith(R"("updateVersion": 2, "updateURL": 3)")));
    expectNothingThere(*widgetTold(replyWith(R"("updateVersion": "", "updateURL": "")")));
}

TEST_F(UpdateWidgetTest, AClickOpensTheInstallersAddress) {
    const auto widget = widgetTold(Replies::update);
    TestWindow window(*widget);
    window.click(middle);
    EXPECT_EQ(links.opened, juce::StringArray(setup));
}

TEST_F(UpdateWidgetTest, AnAddressWithoutAVersionIsEnoughForAClick) {
    const auto widget = widgetTold(replyWith(R"("updateURL": "http://quolm.example/s")"));
    EXPECT_EQ(widget->getNotice(), "Update available");
    TestWindow window(*widget);
    window.click(middle);
    EXPECT_EQ(links.opened, juce::StringArray("http://quolm.example/s"));
}

TEST_F(UpdateWidgetTest, WithoutAnAddressItIsATextThatClicksGoThrough) {
    const auto widget = widgetTold(replyWith(R"("updateVersion": "1.2.3")"));
    EXPECT_EQ(widget->getNotice(), "Update available: v1.2.3");
    EXPECT_FALSE(inkOnWhite(*widget).isEmpty());
    EXPECT_FALSE(widget->canTakeKeyboardFocus());
    TestWindow window(*widget);
    EXPECT_EQ(window.getComponentAt(middle), &window);
    window.click(middle);
    EXPECT_FALSE(widget->activate());
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(UpdateWidgetTest, OpensNothingButAddressesOfTheWeb) {
    for (const char* link :
         {"javascript:alert(1)", "file:///etc/passwd", "file://server/setup.exe",
          "ftp://quolm.example/", "mailto:help@quolm.example", "https://", "setup.exe",
          "https://quolm.example/$(calc)", "https://quolm.example/`calc`"}) {
        const auto widget = widgetTold(replyWithLink(link));
        EXPECT_EQ(widget->getNotice(), "Update available: v1.2.3") << link;
        EXPECT_EQ(widget->getLink(), "") << link;
        TestWindow window(*widget);
        window.click(middle);
        widget->activate();
    }
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(UpdateWidgetTest, ClicksBesideTheTextGoThrough) {
    const auto widget = widgetTold(Replies::update);
    TestWindow window(*widget);
    EXPECT_EQ(window.getComponentAt(middle), widget.get());
    EXPECT_EQ(window.getComponentAt(2, 6), &window);
    EXPECT_EQ(window.getComponentAt(252, 6), &window);
    window.click({2.0f, 6.0f});
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(UpdateWidgetTest, LettingGoBesideItOrTheOtherButtonOpensNothing) {
    const auto widget = widgetTold(Replies::update);
    TestWindow window(*widget);
    window.press(middle);
    window.dragTo({127.0f, 40.0f});
    window.release();
    window.click(middle, 0, juce::ModifierKeys::rightButtonModifier);
    EXPECT_TRUE(links.opened.isEmpty());
}

TEST_F(UpdateWidgetTest, ReturnOpensItAndTheSpaceBarIsTheHosts) {
    const auto widget = widgetTold(Replies::update);
    TestWindow window(*widget);
    widget->takeFocus();
    ASSERT_TRUE(widget->hasKeyboardFocus(false));
    EXPECT_FALSE(window.key(juce::KeyPress(juce::KeyPress::spaceKey)));
    EXPECT_TRUE(links.opened.isEmpty());
    EXPECT_TRUE(window.key(juce::KeyPress(juce::KeyPress::returnKey)));
    EXPECT_EQ(links.opened, juce::StringArray(setup));
}

TEST_F(UpdateWidgetTest, IsALinkToAScreenReader) {
    const auto widget = widgetTold(Replies::update);
    widget->setName("Update Check"); // as tables name it
    EXPECT_TRUE(widget->isAccessible());
    const auto handler = widget->createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::hyperlink);
    EXPECT_EQ(handler->getTitle(), "Update available: v1.2.3");
    EXPECT_TRUE(handler->getActions().invoke(juce::AccessibilityActionType::press));
    EXPECT_EQ(links.opened, juce::StringArray(setup));
}

TEST_F(UpdateWidgetTest, IsATextToAScreenReaderWithoutAnAddress) {
    const auto widget = widgetTold(replyWith(R"("updateVersion": "1.2.3")"));
    EXPECT_TRUE(widget->isAccessible());
    const auto handler = widget->createAccessibilityHandler();
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::staticText);
    EXPECT_EQ(handler->getTitle(), "Update available: v1.2.3");
    EXPECT_FALSE(handler->getActions().contains(juce::AccessibilityActionType::press));
}

TEST_F(UpdateWidgetTest, TheTextIsCentredInItsBounds) {
    const auto widget = widgetTold(Replies::update);
    for (const float magnification : {0.6f, 1.0f, 2.5f}) {
        widget->setMagnification(magnification);
        widget->setSize(juce::roundToInt(255.0f * magnification),
                        juce::roundToInt(12.0f * magnification));
        const juce::Rectangle<int> ink = inkOnWhite(*widget);
        ASSERT_FALSE(ink.isEmpty()) << magnification;
        EXPECT_NEAR(ink.getCentreX(), widget->getWidth() / 2, 2) << magnification;
        EXPECT_GT(ink.getWidth(), widget->getWidth() / 4) << magnification;
        EXPECT_LT(ink.getWidth(), widget->getWidth()) << magnification;
    }
}

TEST_F(UpdateWidgetTest, IsLegibleOnItsPanel) {
    const auto widget = widgetTold(Replies::update);
    Panel panel;
    panel.addAndMakeVisible(*widget);
    for (const juce::Colour base : {juce::Colour(87, 87, 87), juce::Colour(230, 230, 230)}) {
        panel.setBaseColour(base);
        const juce::Image picture = pictureOf(panel, base);
        float farthest = 0.0f;
        for (int x = 0; x < picture.getWidth(); ++x)
            farthest = juce::jmax(farthest, std::abs(picture.getPixelAt(x, 6).getBrightness() -
                                                     base.getBrightness()));
        EXPECT_GT(farthest, 0.3f) << base.toString();
    }
    panel.removeAllChildren();
}

TEST_F(UpdateWidgetTest, IsUnderlinedWhileTheMouseIsOverIt) {
    const auto widget = widgetTold(Replies::update);
    TestWindow window(*widget);
    const auto longestLine = [&] {
        const juce::Image picture = pictureOnWhite(*widget);
        int longest = 0;
        for (int y = 0; y < picture.getHeight(); ++y) {
            int run = 0;
            for (int x = 0; x < picture.getWidth(); ++x) {
                run = isNear(picture.getPixelAt(x, y), juce::Colours::white, 20) ? 0 : run + 1;
                longest = juce::jmax(longest, run);
            }
        }
        return longest;
    };
    const int plain = longestLine();
    window.moveTo(middle);
    EXPECT_GT(longestLine(), 100);
    EXPECT_LT(plain, 20);
    window.moveTo({2.0f, 6.0f});
    EXPECT_EQ(longestLine(), plain);
}

TEST_F(UpdateWidgetTest, WithoutASizeNothingIsDrawnAndNothingGoesWrong) {
    const auto widget = widgetTold(Replies::update);
    widget->setSize(0, 0);
    const juce::Image picture = imageOf(juce::Colours::black, 4, 4);
    juce::Graphics g(picture);
    widget->paint(g);
    expectPixel(picture, 0, 0, juce::Colours::black, 0);
    EXPECT_FALSE(widget->hitTest(0, 0));
}
