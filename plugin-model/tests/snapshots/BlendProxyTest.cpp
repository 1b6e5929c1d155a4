// SPDX-License-Identifier: GPL-3.0-or-later
// The blend control's way to the blend, or to a parameter in its place.
#include "plugin-model/snapshots/QMSnapshotBlendParameterProxy.h"

#include "plugin-model/snapshots/IQMBlendProxyOwner.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

namespace {

using QM::SnapshotMode;

class Owner : public IQMBlendProxyOwner {
public:
    INoxPlugIn* blendedPlugIn() override { return plugIn; }

    void setProxiedParameter(std::int32_t index, double value) override {
        events.push_back("set " + std::to_string(index) + " " + std::to_string(value));
    }

    void touchProxiedParameter(std::int32_t index) override {
        events.push_back("touch " + std::to_string(index));
    }

    void releaseProxiedParameter(std::int32_t index) override {
        // The blend gesture is open around the parameter's.
        events.push_back("release " + std::to_string(index) + (plugIn->canUndo() ? " open" : ""));
    }

    void blendProxyGone(QMSnapshotBlendParameterProxy&) override { events.push_back("gone"); }

    INoxPlugIn* plugIn = nullptr;
    std::vector<std::string> events;
};

class BlendProxy : public testing::Test {
protected:
    BlendProxy() {
        instance->parameterValues()->setSnapshotCount(2);
        instance->selectSnapshot(0, SnapshotMode::store);
        instance->setParameterValue(0, 2.0);
        instance->selectSnapshot(1, SnapshotMode::store);
        instance->setParameterValue(0, 8.0);
        instance->clearUndoAndRedo();
        owner.plugIn = instance.get();
    }

    TestTypeGroup group;
    std::unique_ptr<INoxPlugIn> instance = group.testType().createInstance();
    Owner owner;
};

TEST_F(BlendProxy, movesTheBlendInSinglePrecisionAndKeepsTheOtherCoordinate) {
    instance->setBlend(0.5f, 0.75f);
    QMSnapshotBlendParameterProxy proxy(owner);
    proxy.setValue(0.1);
    EXPECT_EQ(instance->blendValue(0), 0.1f);
    EXPECT_EQ(instance->blendValue(1), 0.75f);
    EXPECT_EQ(proxy.getValue(), static_cast<double>(0.1f));
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(BlendProxy, anEditOfTheBlendIsOneStepOfTheHistory) {
    instance->setBlend(0.5f, 0.5f);
    QMSnapshotBlendParameterProxy proxy(owner);
    proxy.beginEdit();
    proxy.setValue(0.25);
    proxy.setValue(0.0);
    proxy.endEdit();
    instance->undo();
    EXPECT_EQ(instance->blendValue(0), 0.5f);
}

TEST_F(BlendProxy, ofAParameterGoesTheOwnersWay) {
    {
        QMSnapshotBlendParameterProxy proxy(owner, 2);
        proxy.beginEdit();
        proxy.setValue(0.5);
        proxy.endEdit();
        EXPECT_EQ(proxy.getValue(), 0.5) << "the blend's value all the same";
    }
    EXPECT_EQ(owner.events,
              (std::vector<std::string>{"touch 2", "set 2 0.500000", "release 2", "gone"}));
    EXPECT_EQ(instance->blendValue(0), 0.5f);
    EXPECT_FALSE(instance->canUndo());
}

TEST_F(BlendProxy, withoutAnInstanceIsInTheMiddleAndDoesNothing) {
    owner.plugIn = nullptr;
    QMSnapshotBlendParameterProxy proxy(owner);
    proxy.beginEdit();
    proxy.setValue(0.9);
    proxy.endEdit();
    EXPECT_EQ(proxy.getValue(), 0.5);
}

TEST_F(BlendProxy, tellsOfAChangeMadeElsewhere) {
    QMSnapshotBlendParameterProxy proxy(owner);
    proxy.tellValueChanged();
    double told = -1.0;
    proxy.setValueChangedCallback([&](double value) { told = value; });
    instance->setBlend(0.25f, 0.5f);
    proxy.tellValueChanged();
    EXPECT_EQ(told, 0.25);
}

} // namespace
