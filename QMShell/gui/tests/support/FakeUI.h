// SPDX-License-Identifier: GPL-3.0-or-later
// A plug-in UI of a size, that counts what is done with it.
#pragma once

#include "widgets/ui/IQMPlugInUI.h"
#include "widgets/ui/IQMPlugInUIHost.h"
#include "widgets/ui/QMPlugInAccess.h"

#include <set>

class FakeUI final : public juce::Component, public IQMPlugInUI {
public:
    FakeUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost, juce::Rectangle<int> ownSize)
        : access(plugIn)
        , host(uiHost)
        , size(ownSize) {
        alive().insert(this);
        setSize(size.getWidth(), size.getHeight());
    }

    ~FakeUI() override { alive().erase(this); }

    static std::set<FakeUI*>& alive() {
        static std::set<FakeUI*> all;
        return all;
    }

    void grow(int width, int height) {
        size = {width, height};
        setSize(width, height);
        host->setUIArea(size);
    }

    void parameterChanged(std::int32_t, double) override {}

    void parametersChanged(std::int32_t, const std::int32_t*, const double*) override {}

    void setParameterFromUI(std::int32_t, double) override {}

    [[nodiscard]] std::int32_t parameterIndex(FourCharCode) const override { return -1; }

    [[nodiscard]] double parameterValue(std::int32_t) const override { return 0.0; }

    [[nodiscard]] juce::Component& component() override { return *this; }

    [[nodiscard]] bool belongsTo(const INoxPlugIn* plugIn) const override {
        return access.isOf(plugIn);
    }

    [[nodiscard]] std::string plugInName() const override { return {}; }

    [[nodiscard]] std::int32_t parameterCount() const override { return 0; }

    [[nodiscard]] FourCharCode parameterID(std::int32_t) const override { return 0; }

    [[nodiscard]] std::string parameterName(std::int32_t) const override { return {}; }

    [[nodiscard]] std::string parameterUnit(std::int32_t) const override { return {}; }

    [[nodiscard]] std::string parameterText(std::int32_t, double) const override { return {}; }

    [[nodiscard]] double parameterMinimum(std::int32_t) const override { return 0.0; }

    [[nodiscard]] double parameterMaximum(std::int32_t) const override { return 0.0; }

    [[nodiscard]] double parameterDefault(std::int32_t) const override { return 0.0; }

    [[nodiscard]] std::int32_t parameterAt(juce::Point<int>) const override { return -1; }

    [[nodiscard]] juce::Rectangle<int> getDesignSize() const override { return size; }

    [[nodiscard]] juce::Rectangle<int> getScaledSize() const override { return size; }

    void setScalePercent(std::int32_t) override {}

    void setMagnification(float) override {}

    [[nodiscard]] float getMagnification() const override { return 1.0f; }

    void setHelpEnabled(bool on) override { host->setHelpEnabled(on); }

    void preferenceChanged(const juce::String&) override {}

    void setupAfterCreation() override { ++setups; }

    void tick() override { ++ticks; }

    int setups = 0;
    int ticks = 0;

private:
    QMPlugInAccess access;
    IQMPlugInUIHost* host;
    juce::Rectangle<int> size;
};
