// SPDX-License-Identifier: GPL-3.0-or-later
// The other buttons: that each tells its states apart without any picture, and uses its pictures
// where they are.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/buttons/ButtonWidgetTypes.h"
#include "widgets/buttons/QM2PaneButton.h"
#include "widgets/buttons/QM3PaneButton.h"
#include "widgets/buttons/QM3PaneButton_SML.h"
#include "widgets/buttons/QMActionTextButton.h"
#include "widgets/buttons/QMGraphicToggleButton.h"
#include "widgets/buttons/QMHelpToggleButton.h"
#include "widgets/buttons/QMListenToggleButton.h"
#include "widgets/buttons/QMPillToggleButton.h"
#include "widgets/buttons/QMRadioSelector.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/buttons/QMToggleButton.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/buttons/tests/RecordingTarget.h"
#include "widgets/images/ResourceFolder.h"
#include "widgets/statics/tests/PictureOf.h"

#include <cstdint>

namespace {

class ButtonFamilyTest : public ToolkitTest {
protected:
    ButtonFamilyTest() { addButtonWidgetTypes(factory); }

    void TearDown() override { setResourceFolder({}); }

    [[nodiscard]] std::unique_ptr<QMWidget> make(std::uint32_t code) const {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        return factory.create(descriptor);
    }

    template <typename Widget>
    [[nodiscard]] bool makes(std::uint32_t code) const {
        return dynamic_cast<Widget*>(make(code).get()) != nullptr;
    }

    static bool looksTheSame(const juce::Image& a, const juce::Image& b) {
        for (int y = 0; y < a.getHeight(); ++y) {
            for (int x = 0; x < a.getWidth(); ++x) {
                if (!isNear(a.getPixelAt(x, y), b.getPixelAt(x, y), 8))
                    return false;
            }
        }
        return true;
    }

    QMWidgetFactory factory;
};

struct TemporaryPictures {
    TemporaryPictures() {
        folder.createDirectory();
        setResourceFolder(folder);
    }

    ~TemporaryPictures() {
        setResourceFolder({});
        folder.deleteRecursively();
    }

    TemporaryPictures(const TemporaryPictures&) = delete;
    TemporaryPictures& operator=(const TemporaryPictures&) = delete;

    void add(const char* name, juce::Colour colour) const {
        juce::FileOutputStream stream(folder.getChildFile(name));
        juce::PNGImageFormat().writeImageToStream(imageOf(colour, 16, 16), stream);
    }

    juce::File folder = juce::File::createTempFile("pictures");
};

} // namespace

TEST_F(ButtonFamilyTest, EachCodeMakesItsClass) {
    EXPECT_TRUE(makes<QMToggleButton>(2));
    EXPECT_TRUE(makes<QMListenToggleButton>(3));
    EXPECT_TRUE(makes<QM3PaneButton>(27));
    EXPECT_TRUE(makes<QM3PaneButton_SML>(28));
    EXPECT_TRUE(makes<QM2PaneButton>(29));
    EXPECT_TRUE(makes<QMHelpToggleButton>(32));
    EXPECT_TRUE(makes<QMTextToggleButton>(37));
    EXPECT_TRUE(makes<QMToggleButton>(38));
    EXPECT_TRUE(makes<QMGraphicToggleButton>(45));
    EXPECT_TRUE(makes<QMPillToggleButton>(46));
    EXPECT_TRUE(makes<QMRadioSelector>(49));
}

TEST_F(ButtonFamilyTest, TheSelectorAloneGetsNamedItems) {
    for (const std::uint32_t code : {2U, 3U, 27U, 28U, 29U, 32U, 37U, 38U, 45U, 46U})
        EXPECT_EQ(factory.typeOf(code)->items, QMWidgetFactory::Items::none) << code;
    EXPECT_EQ(factory.typeOf(49)->items, QMWidgetFactory::Items::named);
}

TEST_F(ButtonFamilyTest, EachCanBeOperatedByTheKeyboard) {
    for (const std::uint32_t code : {2U, 3U, 27U, 28U, 29U, 32U, 37U, 38U, 45U, 46U, 49U}) {
        const std::unique_ptr<QMWidget> widget = make(code);
        EXPECT_TRUE(widget->canTakeKeyboardFocus()) << code;
        EXPECT_TRUE(widget->isEditable()) << code;
        EXPECT_EQ(widget->getNumParameterSlots(), 1U) << code;
    }
}

TEST_F(ButtonFamilyTest, EachShowsItsStatesWithoutAnyPicture) {
    for (const std::uint32_t code : {2U, 3U, 27U, 28U, 29U, 32U, 37U, 38U, 45U, 46U}) {
        const std::unique_ptr<QMWidget> widget = make(code);
        widget->setName("Name");
        widget->setSize(60, 24);
        const juce::Image off = pictureOf(*widget);
        EXPECT_FALSE(inkOf(off, juce::Colours::black, 4).isEmpty()) << code;
        widget->setParameterValue(0, 1.0, false);
        EXPECT_FALSE(looksTheSame(off, pictureOf(*widget))) << code;
    }
}

TEST_F(ButtonFamilyTest, EachIsFainterWhenItIsDisabled) {
    for (const std::uint32_t code : {2U, 3U, 27U, 28U, 29U, 32U, 37U, 38U, 45U, 46U}) {
        const std::unique_ptr<QMWidget> widget = make(code);
        widget->setName("Name");
        widget->setSize(60, 24);
        widget->setParameterValue(0, 1.0, false);
        const juce::Image enabled = pictureOf(*widget);
        widget->setWidgetEnabled(false);
        EXPECT_FALSE(looksTheSame(enabled, pictureOf(*widget))) << code;
    }
}

TEST_F(ButtonFamilyTest, EachCanBeDrawnInAnySize) {
    for (const std::uint32_t code : {2U, 3U, 27U, 28U, 29U, 32U, 37U, 38U, 45U, 46U, 49U}) {
        const std::unique_ptr<QMWidget> widget = make(code);
        widget->setName("Name");
        const juce::Image picture = imageOf(juce::Colours::black, 10, 10);
        juce::Graphics g(picture);
        for (const int size : {0, 1, 2, 3, 500}) {
            widget->setSize(size, size == 500 ? 1 : size);
            widget->paintEntireComponent(g, true);
        }
    }
}

TEST_F(ButtonFamilyTest, PicturesAreUsedWhereTheyAre) {
    const TemporaryPictures pictures;
    pictures.add("HelpButtonOff.png", juce::Colours::red);
    pictures.add("HelpButtonOn.png", juce::Colours::lime);
    pictures.add("SpeakerButtonIconLightOff.png", juce::Colours::blue);
    pictures.add("SpeakerButtonIconLightOn.png", juce::Colours::yellow);
    pictures.add("SpeakerButtonIconOff.png", juce::Colours::magenta);
    QMHelpToggleButton help;
    help.setSize(8, 8);
    expectPixel(pictureOf(help), 4, 4, juce::Colours::red);
    help.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(help), 4, 4, juce::Colours::lime);

    struct Panel final : juce::Component, QMParentColorSource {};

    Panel panel;
    QMListenToggleButton listen;
    panel.addAndMakeVisible(listen);
    panel.setSize(8, 8);
    listen.setSize(8, 8);
    // Grey as it is the panel is a dark one; light signs go on it.
    expectPixel(pictureOf(panel), 4, 4, juce::Colours::blue);
    listen.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(panel), 4, 4, juce::Colours::yellow);
    panel.setBaseColour(juce::Colours::white);
    listen.setParameterValue(0, 0.0, false);
    expectPixel(pictureOf(panel), 4, 4, juce::Colours::magenta);
}

TEST_F(ButtonFamilyTest, AKeyIsLitInItsColourWhenItIsOn) {
    const TemporaryPictures pictures;
    pictures.add("QMButton.png", juce::Colours::red);
    pictures.add("QMButton_Pressed.png", juce::Colours::lime);
    pictures.add("QMButton_Blue.png", juce::Colours::blue);
    QMGraphicToggleButton key;
    key.setSize(8, 8);
    expectPixel(pictureOf(key), 4, 4, juce::Colours::red);
    key.setParameterValue(0, 1.0, false);
    expectPixel(pictureOf(key), 4, 4, juce::Colours::lime);
    key.setVariant(QMGraphicToggleButton::Variant::blue);
    expectPixel(pictureOf(key), 4, 4, juce::Colours::blue);
    // Pressed, but not on.
    key.setParameterValue(0, 0.0, false);
    key.setStaticState(true);
    TestWindow window(key);
    window.press(key);
    expectPixel(pictureOf(key), 4, 4, juce::Colours::lime);
}

TEST_F(ButtonFamilyTest, ATextToggleShinesInTheColourOfItsStyle) {
    const ToggleStyleRecord style(0, 200, 255, 255);
    QMTextToggleButton button(&style);
    button.setSize(60, 24);
    button.setParameterValue(0, 1.0, false);
    // The face runs from a little brighter to darker; in its upper third it is near the colour.
    const juce::Colour face = pictureOf(button).getPixelAt(6, 6);
    EXPECT_LT(face.getRed(), 60);
    EXPECT_GT(face.getGreen(), 150);
    EXPECT_GT(face.getBlue(), 200);
}

TEST_F(ButtonFamilyTest, TheLitPaneIsTheOneOfTheState) {
    struct Panel final : juce::Component, QMParentColorSource {};

    Panel panel;
    QM3PaneButton button;
    panel.addAndMakeVisible(button);
    panel.setSize(90, 20);
    button.setBounds(panel.getLocalBounds());
    for (int state = 0; state < 3; ++state) {
        button.setParameterValue(0, state, false);
        const juce::Image picture = pictureOf(panel);
        for (int pane = 0; pane < 3; ++pane) {
            // Beside the text, in the middle of the height.
            const float brightness = picture.getPixelAt(30 * pane + 5, 10).getBrightness();
            EXPECT_EQ(brightness > 0.5f, pane == state) << state << " " << pane;
        }
    }
}

TEST_F(ButtonFamilyTest, AClickGoesToTheNextPaneWhereverItIs) {
    QM2PaneButton two;
    two.setSize(60, 20);
    TestWindow window(two);
    window.click({10.0f, 10.0f});
    EXPECT_EQ(two.getState(), 1);
    window.click({10.0f, 10.0f});
    EXPECT_EQ(two.getState(), 0);
    EXPECT_EQ(QM3PaneButton().getStateCount(), 3);
}

TEST_F(ButtonFamilyTest, TheSmallFormNeedsRoomForInitialsOnly) {
    const juce::StringArray sizes{"Small UI", "Medium UI", "Large UI"};
    QM3PaneButton whole;
    QM3PaneButton_SML small;
    whole.setSize(90, 20);
    small.setSize(90, 20);
    whole.setItems(sizes, 0);
    small.setItems(sizes, 2);
    EXPECT_EQ(small.getDisplayText(), "Large UI");
    EXPECT_LT(2 * small.getIdealWidth(), whole.getIdealWidth());
}

TEST_F(ButtonFamilyTest, AnActionWritesItsValueAsAGesture) {
    RecordingTarget target;
    QMActionTextButton button("Reset");
    button.setSize(60, 20);
    button.addParameterTarget(&target);
    TestWindow window(button);
    window.click(button);
    EXPECT_EQ(target.takeNotes(), "");
    button.setParameter(RecordingTarget::parameter, 3.0);
    window.click(button);
    // The toolkit's button tells of its click in a message.
    runPendingMessages();
    EXPECT_EQ(target.takeNotes(), "begin 3 end ");
    target.wantsClicks = true;
    window.click(button);
    runPendingMessages();
    EXPECT_EQ(target.takeNotes(), "");
}
