// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/RenderPlot.h"

#include "brolt/model/QMBrolt_ParameterTable.h"
#include "plugin-model/NumberText.h"
#include "tools/brolt-host/Decibels.h"
#include "tools/brolt-host/PlotPanel.h"
#include "tools/brolt-host/PngFile.h"
#include "tools/brolt-host/Utf8.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int pictureWidth = 1600;
constexpr int pictureHeight = 1000;
constexpr double leftEdge = 84.0;
constexpr double rightEdge = pictureWidth - 36.0;
constexpr PlotArea pitchArea{leftEdge, 124.0, rightEdge, 444.0};
constexpr PlotArea toneArea{leftEdge, 496.0, rightEdge, 676.0};
constexpr PlotArea audioArea{leftEdge, 728.0, rightEdge, 928.0};

constexpr std::array<Colour, 2> oscillatorColours{{{0, 122, 204}, {236, 106, 16}}};
constexpr Colour inputColour{120, 128, 142};
constexpr Colour outputColour{148, 32, 120};

/// Levels below are drawn on the floor.
constexpr double levelFloor = -60.0;

constexpr double curveThickness = 2.4;

/// The pitch fades with the level, to a trace that still tells where it rests: what is not heard
/// should not catch the eye.
double pitchOpacity(double level) {
    constexpr double atRest = 0.13;
    const double loudness = 1.0 - decibels(level) / levelFloor;
    // Also for a level that is not a number, which no comparison holds for.
    return loudness > 0.0 ? atRest + (1.0 - atRest) * std::min(loudness, 1.0) : atRest;
}

PlotScale pitchScale(const std::vector<OscillatorPoint>& points) {
    // One at a standstill (0 Hz) has no place on a logarithmic axis.
    constexpr double lowestShown = 1.0;
    constexpr double margin = 1.08;
    double lowest = 1e9;
    double highest = lowestShown;
    for (const OscillatorPoint& point : points) {
        for (const double frequency : point.frequency) {
            lowest = std::min(lowest, std::max(frequency, lowestShown));
            highest = std::max(highest, frequency);
        }
    }
    return frequencyScale(std::max(std::min(lowest, highest) / margin, lowestShown),
                          highest * margin);
}

double highestTone(const std::vector<OscillatorPoint>& points) {
    double highest = 0.0;
    for (const OscillatorPoint& point : points)
        highest = std::max({highest, point.level[0], point.level[1]});
    return decibels(highest);
}

double highestPeak(const std::vector<float>& peaks) {
    return peaks.empty() ? 0.0 : *std::max_element(peaks.begin(), peaks.end());
}

void drawPitch(PlotCanvas& canvas, const RenderHistory& history, const PlotScale& time) {
    PlotPanel panel(canvas, pitchArea, time, pitchScale(history.oscillators()));
    panel.drawGrid(false);
    panel.drawHeading("Oscillator pitch (Hz)", {{"Oscillator 1", oscillatorColours[0]},
                                                {"Oscillator 2", oscillatorColours[1]}});
    // The first on top: it is the louder one more often than not.
    for (const std::size_t k : {1U, 0U}) {
        std::vector<CurvePoint> curve;
        for (const OscillatorPoint& point : history.oscillators()) {
            curve.push_back(
                panel.point(point.seconds, point.frequency[k], pitchOpacity(point.level[k])));
        }
        drawCurve(canvas, curve, curveThickness, oscillatorColours[k]);
    }
    panel.drawFrame();
}

/// A curve of levels (linear) at ascending times. Each point is the
/// highest of its surroundings, two pixels to either side or more: in a long file it is the upper
/// edge that tells something, not a solid area.
std::vector<CurvePoint> levelCurve(const PlotPanel& panel, const std::vector<double>& levels,
                                   const std::vector<double>& seconds, double surroundings) {
    std::vector<CurvePoint> curve;
    std::size_t begin = 0;
    std::size_t end = 0;
    for (std::size_t i = 0; i < levels.size(); ++i) {
        while (seconds[begin] < seconds[i] - surroundings)
            ++begin;
        while (end < levels.size() && seconds[end] <= seconds[i] + surroundings)
            ++end;
        const double highest =
            *std::max_element(levels.begin() + static_cast<std::ptrdiff_t>(begin),
                              levels.begin() + static_cast<std::ptrdiff_t>(end));
        curve.push_back(panel.point(seconds[i], decibels(highest)));
    }
    return curve;
}

double twoPixels(const RenderHistory& history) {
    return history.seconds() * 2.0 / (rightEdge - leftEdge);
}

void drawTones(PlotCanvas& canvas, const RenderHistory& history, const PlotScale& time) {
    PlotPanel panel(canvas, toneArea, time,
                    levelScale(levelFloor, highestTone(history.oscillators())));
    panel.drawGrid(false);
    panel.drawHeading(
        "Oscillator level: detector x mix gain (dB)",
        {{"Oscillator 1", oscillatorColours[0]}, {"Oscillator 2", oscillatorColours[1]}});
    for (const std::size_t k : {1U, 0U}) {
        std::vector<double> levels;
        std::vector<double> seconds;
        for (const OscillatorPoint& point : history.oscillators()) {
            levels.push_back(point.level[k]);
            seconds.push_back(point.seconds);
        }
        drawCurve(canvas, levelCurve(panel, levels, seconds, twoPixels(history)), curveThickness,
                  oscillatorColours[k]);
    }
    panel.drawFrame();
}

std::vector<CurvePoint> peakCurve(const PlotPanel& panel, const RenderHistory& history,
                                  const std::vector<float>& peaks) {
    // Half a period of a low tone: less would show the swings of the tone and not its level.
    constexpr double shortestSurroundings = 0.012;
    std::vector<double> seconds;
    for (std::size_t i = 0; i < peaks.size(); ++i)
        seconds.push_back((static_cast<double>(i) + 0.5) * history.secondsPerPeak());
    return levelCurve(panel, {peaks.begin(), peaks.end()}, seconds,
                      std::max(shortestSurroundings, twoPixels(history)));
}

void drawAudio(PlotCanvas& canvas, const RenderHistory& history, const PlotScale& time) {
    const double highest =
        std::max(highestPeak(history.inputPeaks()), highestPeak(history.outputPeaks()));
    PlotPanel panel(canvas, audioArea, time, levelScale(levelFloor, decibels(highest)));
    constexpr double inputOpacity = 0.38;
    panel.drawGrid(true);
    panel.drawHeading("Input and output peak level (dBFS)",
                      {{"Input", inputColour, inputOpacity}, {"Output", outputColour}});
    fillBelowCurve(canvas, peakCurve(panel, history, history.inputPeaks()), audioArea.bottom,
                   inputColour, inputOpacity);
    drawCurve(canvas, peakCurve(panel, history, history.outputPeaks()), curveThickness * 0.75,
              outputColour);
    panel.drawFrame();
}

std::string settingsText(const RenderPlan& plan) {
    if (plan.settings.empty())
        return "default settings";
    std::string text;
    for (const ParameterSetting& setting : plan.settings) {
        const NoxPlugInParameter& parameter =
            QMBrolt_parameters()[static_cast<std::size_t>(setting.index)];
        text += (text.empty() ? "" : "  ") + fourCharText(parameter.id) + "=" +
                QM::numberText(setting.value);
    }
    return text;
}

} // namespace

PlotCaption plotCaption(const RenderPlan& plan, const RenderFiles& files, int channels,
                        int sampleRate) {
    PlotCaption caption;
    caption.title = "QM Brolt: " + utf8FromPath(files.input.filename()) + " to " +
                    utf8FromPath(files.output.filename());
    caption.details = std::string(channels == 1 ? "mono" : "stereo") + ", " +
                      std::to_string(sampleRate) + " Hz, blocks of " +
                      std::to_string(plan.blockSize) + ", " + settingsText(plan);
    if (!plan.automation.changes.empty())
        caption.details +=
            ", " + std::to_string(plan.automation.changes.size()) + " automated changes";
    return caption;
}

void drawRenderPlot(const std::filesystem::path& file, const RenderHistory& history,
                    const PlotCaption& caption) {
    constexpr double titleSize = 29.0;
    constexpr double detailSize = 17.0;
    constexpr double titleTop = 16.0;
    PlotCanvas canvas(pictureWidth, pictureHeight, PlotColours::page);
    canvas.drawText(leftEdge, titleTop, caption.title, titleSize, PlotColours::heading);
    canvas.drawText(leftEdge, titleTop + titleSize + 8.0, caption.details, detailSize,
                    PlotColours::text);

    const PlotScale time = timeScale(history.seconds());
    drawPitch(canvas, history, time);
    drawTones(canvas, history, time);
    drawAudio(canvas, history, time);
    constexpr double axisTitleOffset = 36.0;
    canvas.drawText((leftEdge + rightEdge) / 2.0, audioArea.bottom + axisTitleOffset,
                    history.seconds() > 120.0 ? "Time (min:s)" : "Time (s)", detailSize,
                    PlotColours::text, TextAnchor::centre);
    writePngFile(file, pictureWidth, pictureHeight, canvas.pixels());
}
