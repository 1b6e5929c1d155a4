// SPDX-License-Identifier: GPL-3.0-or-later
// Reduced copies of pictures, in the toolkit's image cache under the picture's name followed by
// "<width>x<height>". A copy that nobody uses any more goes after a few seconds: a window that is
// dragged larger and smaller asks for many sizes.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// The image by these factors, made when it is not there (see reduceImage). The image itself where
/// a factor is 1 or more. The name is the picture's alone. [message thread]
[[nodiscard]] juce::Image scaledImage(const juce::String& name, const juce::Image& image,
                                      double factorX, double factorY);

/// A picture of the resource folder (see loadResourceImage) under its file name. [message thread]
[[nodiscard]] juce::Image scaledResourceImage(const juce::String& name, double factor);
