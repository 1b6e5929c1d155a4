// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures for tests: made in memory, read back from what a component draws.
#pragma once

#include "widgets/images/ResourceFolder.h"

#include <juce_gui_basics/juce_gui_basics.h>

/// What a component shows by itself, at so many pixels for each of its own.
inline juce::Image pictureOf(juce::Component& component, float scale = 1.0f) {
    return component.createComponentSnapshot(component.getLocalBounds(), false, scale);
}

/// The largest difference of a channel.
inline int difference(juce::Colour first, juce::Colour second) {
    const auto distance = [](int a, int b) { return a < b ? b - a : a - b; };
    return juce::jmax(
        distance(first.getRed(), second.getRed()), distance(first.getGreen(), second.getGreen()),
        distance(first.getBlue(), second.getBlue()), distance(first.getAlpha(), second.getAlpha()));
}

inline juce::Image plainImage(int width, int height, juce::Colour colour) {
    juce::Image image(juce::Image::ARGB, width, height, true);
    image.clear(image.getBounds(), colour);
    return image;
}

/// The colour of a frame of a grid: no two are the same.
inline juce::Colour colourOfFrame(int frame) {
    return {static_cast<juce::uint8>(frame % 16 * 16), static_cast<juce::uint8>(frame / 16 * 15),
            static_cast<juce::uint8>(77)};
}

/// Sixteen columns and seventeen rows of frames, each of one colour.
inline juce::Image gridImage(int frameWidth, int frameHeight) {
    juce::Image image(juce::Image::ARGB, 16 * frameWidth, 17 * frameHeight, true);
    for (int frame = 0; frame < 16 * 17; ++frame)
        image.clear({frame % 16 * frameWidth, frame / 16 * frameHeight, frameWidth, frameHeight},
                    colourOfFrame(frame));
    return image;
}

/// A resource folder of a test's own.
class TestResources {
public:
    TestResources()
        : folder(juce::File::createTempFile("resources")) {
        folder.createDirectory();
        setResourceFolder(folder);
    }

    ~TestResources() {
        setResourceFolder({});
        folder.deleteRecursively();
    }

    TestResources(const TestResources&) = delete;
    TestResources& operator=(const TestResources&) = delete;

    void add(const juce::String& name, const juce::Image& image) const {
        juce::FileOutputStream stream(folder.getChildFile(name));
        juce::PNGImageFormat().writeImageToStream(image, stream);
    }

private:
    juce::File folder;
};
