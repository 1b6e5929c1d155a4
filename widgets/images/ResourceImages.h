// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures that come with the library, each decoded once as long as the toolkit lives: from
// files in the resource folder, and from blocks of data compiled into the library. They are in the
// toolkit's image cache as well, files under the key that the toolkit itself would use.
//
// PNG and WebP (see ImageDecoding). A picture that is missing, damaged or too large is a null image
// and one line in the log; it is not tried again before retryFailedImages.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <cstddef>
#include <initializer_list>

/// A file in the resource folder (see ResourceFolder). [message thread]
[[nodiscard]] juce::Image loadResourceImage(const juce::String& name);

/// Begins to decode these files, each on a thread of its own, for loadResourceImage to take: an
/// editor that needs several large ones has them in the time of the largest. [message thread]
void prefetchResourceImages(std::initializer_list<const char*> names);

/// A picture's bytes; the same bytes elsewhere are the same picture. [message thread]
[[nodiscard]] juce::Image imageFromMemory(const void* data, std::size_t size);

/// To be called when an editor opens: what failed may be there by now. [message thread]
void retryFailedImages();
