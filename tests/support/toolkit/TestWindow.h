// SPDX-License-Identifier: GPL-3.0-or-later
// A window without a window system: mouse, wheel and keys given to it go the toolkit's whole way to
// the component that they are meant for (hit test, mouse-over, dragging, double clicks, focus), on
// a clock that the test drives. Works the same where there is no screen.
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdlib>
#include <memory>

#ifndef _WIN32
namespace {

/// The toolkit would show a mouse pointer in the window, which no screen knows.
[[maybe_unused]] const int thereIsNoScreen = setenv("DISPLAY", "none", 1);

} // namespace
#endif

class TestWindow final : public juce::Component {
public:
    /// Shows a component, which must outlive the window, at its top left corner.
    explicit TestWindow(juce::Component& shown) {
        setSize(shown.getWidth(), shown.getHeight());
        setOpaque(true);
        // Else the first child that wants the keyboard gets it with the window.
        setWantsKeyboardFocus(true);
        addAndMakeVisible(shown);
        setVisible(true);
        addToDesktop(0);
        getPeer()->handleFocusGain();
        // What an earlier window left in the mouse.
        mouse({-1000.0f, -1000.0f}, 0);
        clock += pauseMs;
    }

    ~TestWindow() override {
        release();
        removeFromDesktop();
        removeAllChildren();
    }

    // The mouse. Positions are in the window, or in a component given with them.

    void moveTo(juce::Point<float> position) { mouse(position, held()); }

    /// Presses at a position; modifiers are those of the keyboard (ctrlModifier, ...).
    void press(juce::Point<float> position, int keyboard = 0,
               int button = juce::ModifierKeys::leftButtonModifier) {
        keys = keyboard;
        mouse(position, keyboard);
        buttons = button;
        mouse(position, held());
    }

    void press(const juce::Component& at, int keyboard = 0,
               int button = juce::ModifierKeys::leftButtonModifier) {
        press(centreOf(at), keyboard, button);
    }

    void dragTo(juce::Point<float> position) { mouse(position, held()); }

    void dragBy(float x, float y) { dragTo(lastPosition + juce::Point<float>(x, y)); }

    /// The keyboard's modifiers from now on, as held during a drag.
    void holdKeys(int keyboard) {
        using juce::ModifierKeys;
        keys = keyboard;
        // A window system tells of the keyboard apart from the mouse.
        ModifierKeys::currentModifiers =
            ModifierKeys::currentModifiers.withOnlyMouseButtons().withFlags(keyboard);
    }

    void release() {
        if (buttons == 0)
            return;
        buttons = 0;
        mouse(lastPosition, held());
        holdKeys(0);
    }

    void click(juce::Point<float> position, int keyboard = 0,
               int button = juce::ModifierKeys::leftButtonModifier) {
        press(position, keyboard, button);
        release();
        clock += pauseMs;
    }

    void click(const juce::Component& at, int keyboard = 0,
               int button = juce::ModifierKeys::leftButtonModifier) {
        click(centreOf(at), keyboard, button);
    }

    void doubleClick(const juce::Component& at) {
        press(at);
        release();
        clock += 50;
        press(at);
        release();
        clock += pauseMs;
    }

    /// One event of the wheel, in the toolkit's units: 1 is a good deal.
    void wheel(const juce::Component& at, float x, float y, int keyboard = 0,
               bool reversed = false) {
        keys = keyboard;
        mouse(centreOf(at), held());
        juce::MouseWheelDetails details{};
        details.deltaX = x;
        details.deltaY = y;
        details.isReversed = reversed;
        getPeer()->handleMouseWheel(juce::MouseInputSource::InputSourceType::mouse, lastPosition,
                                    ++clock, details);
        holdKeys(0);
    }

    // The keyboard. False when nobody has used the key.

    bool key(const juce::KeyPress& pressed) {
        juce::ModifierKeys::currentModifiers = pressed.getModifiers();
        const bool used = getPeer()->handleKeyPress(pressed);
        juce::ModifierKeys::currentModifiers = {};
        return used;
    }

    void type(const juce::String& text) {
        for (const juce::juce_wchar character : text)
            key(juce::KeyPress(static_cast<int>(character), {}, character));
    }

    [[nodiscard]] juce::Point<float> centreOf(const juce::Component& component) const {
        return getLocalPoint(&component, component.getLocalBounds().toFloat().getCentre());
    }

    /// What the window shows.
    [[nodiscard]] juce::Image picture() { return createComponentSnapshot(getLocalBounds()); }

    juce::ComponentPeer* createNewPeer(int styleFlags, void*) override {
        return new Peer(*this, styleFlags);
    }

    void paint(juce::Graphics& g) override { g.fillAll(juce::Colours::darkgrey); }

private:
    static constexpr int pauseMs = 1000; ///< no double click across it

    class Peer final : public juce::ComponentPeer {
    public:
        Peer(juce::Component& shownIn, int flags)
            : ComponentPeer(shownIn, flags) {}

        void* getNativeHandle() const override { return nullptr; }

        void setVisible(bool) override {}

        void setTitle(const juce::String&) override {}

        void setBounds(const juce::Rectangle<int>& newBounds, bool) override {
            area = newBounds;
            handleMovedOrResized();
        }

        juce::Rectangle<int> getBounds() const override { return area; }

        juce::Point<float> localToGlobal(juce::Point<float> position) override {
            return position + area.getPosition().toFloat();
        }

        juce::Point<float> globalToLocal(juce::Point<float> position) override {
            return position - area.getPosition().toFloat();
        }

        void setMinimised(bool) override {}

        bool isMinimised() const override { return false; }

        void setFullScreen(bool) override {}

        bool isFullScreen() const override { return false; }

        void setIcon(const juce::Image&) override {}

        bool contains(juce::Point<int> position, bool) const override {
            return area.withZeroOrigin().contains(position);
        }

        OptionalBorderSize getFrameSizeIfPresent() const override { return {}; }

        juce::BorderSize<int> getFrameSize() const override { return {}; }

        bool setAlwaysOnTop(bool) override { return false; }

        void toFront(bool) override {}

        void toBehind(ComponentPeer*) override {}

        bool isFocused() const override { return true; }

        void grabFocus() override {}

        void repaint(const juce::Rectangle<int>&) override {}

        void performAnyPendingRepaintsNow() override {}

        void setAlpha(float) override {}

        void textInputRequired(juce::Point<int>, juce::TextInputTarget&) override {}

        juce::StringArray getAvailableRenderingEngines() override { return {"none"}; }

    private:
        juce::Rectangle<int> area;
    };

    [[nodiscard]] int held() const { return keys | buttons; }

    void mouse(juce::Point<float> position, int modifiers) {
        lastPosition = position;
        holdKeys(keys);
        getPeer()->handleMouseEvent(juce::MouseInputSource::InputSourceType::mouse, position,
                                    juce::ModifierKeys(modifiers), 0.0f, 0.0f, ++clock);
    }

    juce::Point<float> lastPosition;
    int buttons = 0;
    int keys = 0;
    /// Milliseconds; far enough on for every window to come after the one before.
    inline static juce::int64 clock = 1000000000000;
};
