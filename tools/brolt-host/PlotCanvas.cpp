// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PlotCanvas.h"

// The library would print to the console when it throws.
#define cimg_verbosity 0
#include <CImg.h>

#include <algorithm>
#include <cmath>

using cimg_library::CImg;

namespace {

constexpr int scale = PlotCanvas::oversampling;
constexpr int colours = 3;

int gridPosition(double position) {
    return static_cast<int>(std::lround(position * scale));
}

std::string asciiOf(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isContinuation = (byte & 0xc0U) == 0x80U; // one question mark a UTF-8 character
        if (byte >= 0x20U && byte < 0x7fU)
            result += c;
        else if (!isContinuation)
            result += '?';
    }
    return result;
}

/// The text in white on black: its brightness is how much of a pixel it covers.
CImg<std::uint8_t> textCoverage(const std::string& text, double size) {
    constexpr std::uint8_t white = 255;
    constexpr std::uint8_t black = 0;
    CImg<std::uint8_t> coverage;
    coverage.draw_text(0, 0, "%s", &white, &black, 1.0F,
                       static_cast<unsigned>(std::max(gridPosition(size), 1)),
                       asciiOf(text).c_str());
    return coverage;
}

} // namespace

struct PlotCanvas::Image {
    CImg<std::uint8_t> pixels;
};

PlotCanvas::PlotCanvas(int width, int height, const Colour& background)
    : width_(width)
    , height_(height)
    , image(std::make_unique<Image>()) {
    image->pixels.assign(static_cast<unsigned>(width * scale),
                         static_cast<unsigned>(height * scale), 1, colours);
    fillRectangle(0, 0, width, height, background);
}

PlotCanvas::~PlotCanvas() = default;

void PlotCanvas::fillRectangle(double left, double top, double right, double bottom,
                               const Colour& colour, double opacity) {
    const int x0 = gridPosition(left);
    const int y0 = gridPosition(top);
    const int x1 = std::max(gridPosition(right) - 1, x0);
    const int y1 = std::max(gridPosition(bottom) - 1, y0);
    image->pixels.draw_rectangle(x0, y0, x1, y1, colour.data(), static_cast<float>(opacity));
}

void PlotCanvas::drawText(double x, double y, const std::string& text, double size,
                          const Colour& colour, TextAnchor anchor) {
    const CImg<std::uint8_t> coverage = textCoverage(text, size);
    const double width = static_cast<double>(coverage.width()) / scale;
    if (anchor == TextAnchor::centre)
        x -= width / 2;
    else if (anchor == TextAnchor::right)
        x -= width;

    CImg<std::uint8_t> ink(static_cast<unsigned>(coverage.width()),
                           static_cast<unsigned>(coverage.height()), 1, colours);
    for (int c = 0; c < colours; ++c)
        ink.get_shared_channel(static_cast<unsigned>(c)).fill(colour[static_cast<std::size_t>(c)]);
    constexpr float opaque = 255.0F;
    image->pixels.draw_image(gridPosition(x), gridPosition(y), ink, coverage, 1.0F, opaque);
}

double PlotCanvas::textWidth(const std::string& text, double size) const {
    return static_cast<double>(textCoverage(text, size).width()) / scale;
}

std::vector<std::uint8_t> PlotCanvas::pixels() const {
    constexpr int movingAverage = 2;
    const CImg<std::uint8_t> reduced =
        image->pixels.get_resize(width_, height_, 1, colours, movingAverage);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(std::size_t{colours} * static_cast<std::size_t>(width_) *
                  static_cast<std::size_t>(height_));
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            for (int c = 0; c < colours; ++c)
                bytes.push_back(reduced(static_cast<unsigned>(x), static_cast<unsigned>(y), 0,
                                        static_cast<unsigned>(c)));
        }
    }
    return bytes;
}
