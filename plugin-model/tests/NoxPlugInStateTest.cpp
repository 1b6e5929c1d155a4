// SPDX-License-Identifier: GPL-3.0-or-later
// An instance saved and restored: records, the current preset, undo texts, event sources.
#include "plugin-model/NoxPlugInSnapshot.h"
#include "plugin-model/tests/StubEnvironment.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "presets/record/QMGenericPreset.h"
#include "presets/record/QMPresetHolder.h"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

/// Notes which parameters an instance reports.
class ListeningEnvironment : public StubEnvironment {
public:
    void parametersChanged(INoxPlugIn&, std::int32_t count, const std::int32_t* indices,
                           const double*, std::uint8_t) override {
        changed.insert(changed.end(), indices, indices + count);
    }

    std::unique_ptr<QMGenericEventSource> createEventSource(const json& mapping) override;

    std::vector<std::int32_t> changed;
    std::vector<json> mappings;
    int livingSources = 0;
};

class Source : public QMGenericEventSource {
public:
    explicit Source(ListeningEnvironment& owner)
        : environment(owner) {
        ++environment.livingSources;
    }

    ~Source() override { --environment.livingSources; }

    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    void setEventListener(EventListener newListener, std::string newName) override {
        listener = std::move(newListener);
        name = std::move(newName);
    }

    EventListener listener;
    std::string name;

private:
    ListeningEnvironment& environment;
};

std::unique_ptr<QMGenericEventSource> ListeningEnvironment::createEventSource(const json& mapping) {
    mappings.push_back(mapping);
    if (mapping.value("kind", "") != "known")
        return nullptr;
    return std::make_unique<Source>(*this);
}

class InstanceState : public testing::Test {
protected:
    InstanceState() {
        QM::IQMParameterSet* set = group.testType().parameterSet();
        set->setFirstCode(group.manufacturerCode());
        set->setSecondCode(fourCharCode("TST1"));
        plugIn.parameterValues()->setSnapshotCount(2);
        environment.changed.clear();
    }

    [[nodiscard]] QMGenericPreset record(double alfa) const {
        QMGenericPreset result = plugIn.getStateRecord(StateExtent::parameters);
        result.values[fourCharCode("alfa")] = alfa;
        result.uniqueId = 0x8000000000000042u;
        return result;
    }

    ListeningEnvironment environment;
    TestTypeGroup group{&environment};
    std::unique_ptr<INoxPlugIn> instance = group.testType().createInstance();
    TestPlugIn& plugIn = dynamic_cast<TestPlugIn&>(*instance);
};

TEST_F(InstanceState, anAppliedRecordIsToldToTheEnvironmentAtOnce) {
    EXPECT_TRUE(plugIn.supportsGenericPresets());
    ASSERT_TRUE(plugIn.applyStateRecord(record(7.0)));
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
    EXPECT_EQ(environment.changed, std::vector<std::int32_t>{0});
}

TEST_F(InstanceState, aRecordOfAnotherProductIsRefusedUntilItIsAdapted) {
    QMGenericPreset other = record(7.0);
    other.manufacturerCode = fourCharCode("ELSE");
    other.productCode = fourCharCode("ELSE");
    EXPECT_FALSE(plugIn.canApplyGenericPreset(other));
    EXPECT_FALSE(plugIn.applyStateRecord(other));
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_TRUE(environment.changed.empty());
    plugIn.adaptStateRecord(other);
    EXPECT_TRUE(plugIn.canApplyGenericPreset(other));
    EXPECT_TRUE(plugIn.applyStateRecord(other));
}

TEST_F(InstanceState, isComparedWithARecord) {
    EXPECT_TRUE(plugIn.equalsStateRecord(record(5.0)));
    EXPECT_FALSE(plugIn.equalsStateRecord(record(6.0)));
}

TEST_F(InstanceState, aBarePresetGoesIntoTheActiveSnapshotAndLeavesTheDocumentAlone) {
    plugIn.selectSnapshot(0, QM::SnapshotMode::store);
    plugIn.parameterValues()->setExtensionDocument({{"own", 1}});
    QMGenericPreset bare = record(7.0);
    bare.extension = nullptr;
    ASSERT_TRUE(plugIn.applyStateRecord(bare));
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
    EXPECT_EQ(plugIn.parameterValues()->snapshotValue(0, 0), 7.0);
    EXPECT_EQ(plugIn.parameterValues()->extensionDocument(), json({{"own", 1}}));
    EXPECT_EQ(plugIn.currentPresetId(), 0x8000000000000042u);
    plugIn.undo();
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_EQ(plugIn.currentPresetId(), 0u);
}

TEST_F(InstanceState, theFactoryStateIsEveryDefault) {
    plugIn.setParameterValue(0, 7.0);
    plugIn.setParameterValue(1, 0.0);
    ASSERT_TRUE(plugIn.applyParameterState(plugIn.getFactoryState()));
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_EQ(plugIn.parameterValue(1), 1.0);
    EXPECT_EQ(environment.changed.size(), 2u);
    EXPECT_FALSE(plugIn.applyParameterState({}));
}

TEST_F(InstanceState, theCurrentPresetIsToldByItsIdentifier) {
    EXPECT_EQ(plugIn.currentPresetLocator(), SettingLocator{});
    plugIn.applyStateRecord(record(7.0));
    EXPECT_EQ(plugIn.currentPresetLocator(), (SettingLocator{0x80000000u, 0x42u, 1, 0}));
    plugIn.setCurrentPresetLocator({0x80000001u, 7, 1, 0});
    EXPECT_EQ(plugIn.currentPresetId(), 0x8000000100000007u);
    plugIn.setCurrentPresetLocator({0x20000u, 3, 1, 0});
    EXPECT_EQ(plugIn.currentPresetLocator(), (SettingLocator{0x20000u, 3, 1, 0}));
}

TEST_F(InstanceState, noPresetAndADeletedPresetAreToldApart) {
    plugIn.applyStateRecord(record(7.0));
    plugIn.setCurrentPresetLocator({0, 0, 0, 0});
    plugIn.setCurrentPresetId(0x8000000000000000u);
    EXPECT_EQ(plugIn.currentPresetLocator(), (SettingLocator{0, 0, 0, 0}));
    plugIn.setCurrentPresetLocator({0, 0, 0, 1});
    plugIn.setCurrentPresetId(0x8000000000000001u);
    EXPECT_EQ(plugIn.currentPresetLocator(), (SettingLocator{0, 0, 0, 1}));

    const auto restored = group.testType().createInstance();
    ASSERT_TRUE(restored->applyStateRecord(plugIn.getStateRecord(StateExtent::complete)));
    EXPECT_EQ(restored->currentPresetLocator(), (SettingLocator{0, 0, 0, 1}));
}

TEST_F(InstanceState, undoBringsTheLocatorBackToo) {
    plugIn.applyStateRecord(record(7.0));
    const SettingLocator first = plugIn.currentPresetLocator();
    QMGenericPreset second = record(8.0);
    second.uniqueId = 0x8000000000000043u;
    plugIn.applyStateRecord(second);
    plugIn.setCurrentPresetLocator(SettingLocator::ofUniqueId(second.uniqueId));
    plugIn.undo();
    EXPECT_EQ(plugIn.currentPresetLocator(), first);
}

TEST_F(InstanceState, settingsThatWerePutAsideComeBackWithTheirPreset) {
    plugIn.applyStateRecord(record(7.0));
    plugIn.setCurrentPresetLocator({0x20000u, 3, 1, 0});
    const QMPresetHolder<NoxPlugInSnapshot> holder(plugIn.captureSettings());
    plugIn.applyStateRecord(record(9.0));
    plugIn.selectSnapshot(0, QM::SnapshotMode::store);
    ASSERT_TRUE(plugIn.restoreSettings(holder.settings()));
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
    EXPECT_EQ(plugIn.activeSnapshot(), -1);
    EXPECT_EQ(plugIn.currentPresetLocator(), (SettingLocator{0x20000u, 3, 1, 0}));
    EXPECT_FALSE(plugIn.restoreSettings({}));
}

TEST_F(InstanceState, menuTextsJoinTheWordToTheDescription) {
    EXPECT_EQ(plugIn.undoMenuText(), "Nothing to Undo");
    EXPECT_EQ(plugIn.redoMenuText(), "Nothing to Redo");
    plugIn.applyStateRecord(record(7.0));
    EXPECT_EQ(plugIn.undoMenuText(), "UndoSet Preset");
    plugIn.undo();
    EXPECT_EQ(plugIn.undoMenuText(), "Nothing to Undo");
    EXPECT_EQ(plugIn.redoMenuText(), "RedoSet Preset");
    plugIn.redo();
    plugIn.beginTouch(0);
    EXPECT_EQ(plugIn.undoMenuText(), "UndoSet Alfa");
    plugIn.endTouch(0);
    EXPECT_TRUE(plugIn.canUndo());
    plugIn.clearUndoAndRedo();
    EXPECT_FALSE(plugIn.canUndo());
}

TEST_F(InstanceState, snapshotsAndTheBlendAreToldToTheEnvironment) {
    plugIn.selectSnapshot(0, QM::SnapshotMode::store);
    plugIn.selectSnapshot(1, QM::SnapshotMode::store);
    plugIn.setParameterValue(0, 9.0);
    environment.changed.clear();
    plugIn.selectSnapshot(0, QM::SnapshotMode::recallOrStore);
    EXPECT_EQ(environment.changed, std::vector<std::int32_t>{0});
    plugIn.setBlend(0.5f, 0.5f);
    EXPECT_EQ(environment.changed.size(), 2u);
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
    EXPECT_EQ(plugIn.activeSnapshot(), -2);
    EXPECT_EQ(plugIn.blendValue(0), 0.5f);
    plugIn.undo();
    EXPECT_EQ(plugIn.activeSnapshot(), 1);
    EXPECT_EQ(plugIn.parameterValue(0), 9.0);
}

TEST_F(InstanceState, eventSourcesTravelWithTheState) {
    QMGenericPreset mapped = record(7.0);
    mapped.extension = {{"parameterMap",
                         {{"alfa", {{"kind", "known"}}},
                          {"chrl and more", {{"kind", "known"}}},
                          {"brvo", {{"kind", "other"}}},
                          {"none", {{"kind", "known"}}},
                          {"x", {{"kind", "known"}}}}}};
    ASSERT_TRUE(plugIn.applyStateRecord(mapped));
    EXPECT_EQ(environment.livingSources, 2);
    const auto* source = dynamic_cast<Source*>(plugIn.controllerOfIndex(0)->eventSource());
    ASSERT_NE(source, nullptr);
    EXPECT_NE(plugIn.controllerOfIndex(2)->eventSource(), nullptr) << "four characters count";
    EXPECT_EQ(plugIn.controllerOfIndex(1)->eventSource(), nullptr);
    EXPECT_EQ(source->name, "NoxPlugIn::updateParameterControllerMapFromProperty::EventListener");

    double heard = 0.0;
    source->listener(QMGenericEventSource::EventType::set, 0.5);
    plugIn.controllerOfIndex(0)->setEventTarget(
        [&](QMGenericEventSource::EventType, double value) { heard = value; });
    source->listener(QMGenericEventSource::EventType::set, 0.25);
    EXPECT_EQ(heard, 0.25);
    EXPECT_EQ(plugIn.getStateRecord(StateExtent::complete).extension.at("parameterMap"),
              mapped.extension.at("parameterMap"));
}

TEST_F(InstanceState, aStateWithoutMappingsLeavesThePresentOnesAtWork) {
    QMGenericPreset mapped = record(7.0);
    mapped.extension = {{"parameterMap", {{"alfa", {{"kind", "known"}}}}}};
    plugIn.applyStateRecord(mapped);
    for (const json& nothing : {json(), json::object(), json::array()}) {
        QMGenericPreset other = record(8.0);
        other.extension = {{"parameterMap", nothing}};
        plugIn.applyStateRecord(other);
        EXPECT_NE(plugIn.controllerOfIndex(0)->eventSource(), nullptr);
        EXPECT_EQ(environment.livingSources, 1);
    }
    QMGenericPreset another = record(8.0);
    another.extension = {{"parameterMap", {{"brvo", {{"kind", "known"}}}}}};
    plugIn.applyStateRecord(another);
    EXPECT_EQ(plugIn.controllerOfIndex(0)->eventSource(), nullptr);
    EXPECT_NE(plugIn.controllerOfIndex(1)->eventSource(), nullptr);
}

TEST_F(InstanceState, aMappingThatIsNoDocumentIsRefusedBeforeAnythingChanges) {
    QMGenericPreset broken = record(7.0);
    for (const json& value : {json(5), json("text"), json(true)}) {
        broken.extension = {{"parameterMap", {{"alfa", value}}}};
        try {
            plugIn.applyStateRecord(broken);
            ADD_FAILURE() << value << " was taken";
        } catch (const json::exception& error) {
            EXPECT_NE(std::string(error.what()).find("cannot get value"), std::string::npos);
        }
        EXPECT_EQ(plugIn.parameterValue(0), 5.0);
        EXPECT_FALSE(plugIn.canUndo());
    }
    broken.extension = {{"parameterMap", {{"none", 5}}}};
    EXPECT_TRUE(plugIn.applyStateRecord(broken)) << "an unknown parameter's entry is not looked at";
}

TEST(InstanceStateWithoutValues, isTheFlatFormAlone) {
    TestTypeGroup group(nullptr, TestTypeKind::withoutValues);
    const auto plugIn = group.testType().createInstance();
    EXPECT_FALSE(plugIn->supportsGenericPresets());
    EXPECT_FALSE(plugIn->applyStateRecord({}));
    EXPECT_FALSE(plugIn->equalsStateRecord({}));
    EXPECT_EQ(plugIn->undoMenuText(), "");
    EXPECT_EQ(plugIn->redoMenuText(), "");
    EXPECT_EQ(plugIn->blendValue(0), 0.5f);
    EXPECT_EQ(plugIn->snapshotCount(), 0);
    EXPECT_EQ(plugIn->activeSnapshot(), -1);
    EXPECT_EQ(plugIn->snapshotName(0), "Unknown");
    plugIn->selectSnapshot(0, QM::SnapshotMode::store);
    plugIn->setBlend(0.1f, 0.1f);
    plugIn->undo();
    plugIn->redo();
    EXPECT_FALSE(plugIn->canUndo());
    EXPECT_FALSE(plugIn->canRedo());

    std::vector<std::byte> state = plugIn->getParameterState();
    ASSERT_EQ(state.size(), 280u + 3 * 8);
    EXPECT_EQ(state, plugIn->getFactoryState());
    const double nine = 9.0;
    std::memcpy(state.data() + 280, &nine, sizeof nine);
    ASSERT_TRUE(plugIn->applyParameterState(state));
    EXPECT_EQ(plugIn->parameterValue(0), 9.0);
    state[12] = std::byte{0};
    EXPECT_FALSE(plugIn->applyParameterState(state)) << "another maker";
}

} // namespace
