// SPDX-License-Identifier: GPL-3.0-or-later
// What a host learns from the library before it makes anything, and what it can make.
#include "brolt/library/tests/support/LibraryInstance.h"

#include <pluginterfaces/base/iplugincompatibility.h>
#include <pluginterfaces/vst/ivstunits.h>

using Steinberg::kResultOk;
using Steinberg::PClassInfo;
using Steinberg::PClassInfo2;
using Steinberg::PClassInfoW;
using Steinberg::PFactoryInfo;
using VST3::Hosting::ClassInfo;

namespace {

const VST3::Hosting::PluginFactory& factory() {
    return LoadedLibrary::shared().factory();
}

/// What both classes say alike.
void expectOwnIdentity(const ClassInfo& info) {
    EXPECT_EQ(info.name(), "QM Brolt");
    EXPECT_EQ(info.vendor(), "Quolm");
    EXPECT_EQ(info.version(), "4.0.2.157");
    EXPECT_EQ(info.sdkVersion(), "VST 3.7.6");
    EXPECT_EQ(info.cardinality(), 0x7FFFFFFF); // as many as the host likes
}

} // namespace

TEST(Vst3Factory, namesTheMakerAndItsAddresses) {
    const VST3::Hosting::FactoryInfo info = factory().info();
    EXPECT_EQ(info.vendor(), "Quolm");
    EXPECT_EQ(info.flags(), 0x10); // texts are Unicode
    EXPECT_NE(info.url().find("quolm.example"), std::string::npos) << info.url();
    EXPECT_TRUE(info.email().ends_with("@quolm.example")) << info.email();
}

TEST(Vst3Factory, offersTheEffectAndTheCompatibilityClassAndNothingElse) {
    const std::vector<ClassInfo> classes = factory().classInfos();
    ASSERT_EQ(classes.size(), 2U);
    EXPECT_EQ(classes[0].category(), "Audio Module Class");
    EXPECT_EQ(classes[1].category(), "Plugin Compatibility Class");
}

TEST(Vst3Factory, describesTheEffect) {
    const ClassInfo info = LoadedLibrary::shared().classOf("Audio Module Class");
    expectOwnIdentity(info);
    EXPECT_EQ(info.classFlags(), 0U);
    // The product's category bits are 0x801; none of those that name a further category is set.
    EXPECT_EQ(info.subCategoriesString(), "Fx");
}

TEST(Vst3Factory, describesTheCompatibilityClass) {
    const ClassInfo info = LoadedLibrary::shared().classOf("Plugin Compatibility Class");
    expectOwnIdentity(info);
    EXPECT_EQ(info.classFlags(), 1U);
    EXPECT_EQ(info.subCategoriesString(), "");
}

TEST(Vst3Factory, tellsTheSameToHostsOfEveryAge) {
    Steinberg::IPluginFactory& first = LoadedLibrary::shared().rawFactory();
    const Steinberg::FUnknownPtr<Steinberg::IPluginFactory2> second(&first);
    const Steinberg::FUnknownPtr<Steinberg::IPluginFactory3> third(&first);
    ASSERT_TRUE(second);
    ASSERT_TRUE(third);
    for (Steinberg::int32 i = 0; i < first.countClasses(); ++i) {
        PClassInfo one{};
        PClassInfo2 two{};
        PClassInfoW three{};
        ASSERT_EQ(first.getClassInfo(i, &one), kResultOk);
        ASSERT_EQ(second->getClassInfo2(i, &two), kResultOk);
        ASSERT_EQ(third->getClassInfoUnicode(i, &three), kResultOk);
        EXPECT_EQ(VST3::UID(one.cid), VST3::UID(two.cid));
        EXPECT_EQ(VST3::UID(one.cid), VST3::UID(three.cid));
        EXPECT_STREQ(one.name, "QM Brolt");
        EXPECT_STREQ(two.name, "QM Brolt");
        EXPECT_EQ(textOf(three.name), "QM Brolt");
        EXPECT_STREQ(one.category, three.category);
        EXPECT_STREQ(two.version, "4.0.2.157");
        EXPECT_EQ(textOf(three.version), "4.0.2.157");
    }
}

TEST(Vst3Factory, hasNoClassBeyondItsCount) {
    Steinberg::IPluginFactory& raw = LoadedLibrary::shared().rawFactory();
    PClassInfo info{};
    EXPECT_NE(raw.getClassInfo(2, &info), kResultOk);
    EXPECT_NE(raw.getClassInfo(-1, &info), kResultOk);
}

TEST(Vst3Factory, isOneObjectThatEveryCallHoldsOnceMore) {
    using GetFactory = Steinberg::IPluginFactory*(PLUGIN_API*)();
    Steinberg::IPluginFactory& known = LoadedLibrary::shared().rawFactory();
    const auto getFactory =
        reinterpret_cast<GetFactory>(LoadedLibrary::exported("GetPluginFactory"));
    ASSERT_NE(getFactory, nullptr);
    known.addRef();
    const Steinberg::uint32 before = known.release();
    EXPECT_EQ(getFactory(), &known);
    EXPECT_EQ(getFactory(), &known);
    known.release();
    EXPECT_EQ(known.release(), before);
}

TEST(Vst3Factory, makesNothingOfAnUnknownClassOrInterface) {
    Steinberg::IPluginFactory& raw = LoadedLibrary::shared().rawFactory();
    const VST3::UID effect = LoadedLibrary::shared().classOf("Audio Module Class").ID();
    const Steinberg::FUID stranger(1, 2, 3, 4);
    int marker = 0;
    void* object = &marker;
    EXPECT_NE(raw.createInstance(stranger, Steinberg::getTUID<Vst::IComponent>(), &object),
              kResultOk);
    EXPECT_EQ(object, nullptr);
    object = &marker;
    EXPECT_NE(raw.createInstance(effect.data(), stranger, &object), kResultOk);
    EXPECT_EQ(object, nullptr);
}

TEST(Vst3Factory, makesObjectsThatAreProcessorAndControllerInOne) {
    LibraryInstance instance(LibraryInstance::Begin::created);
    const auto unknown = instance.as<Steinberg::FUnknown>();
    const auto identity = [](auto interfacePointer) {
        return Steinberg::FUnknownPtr<Steinberg::FUnknown>(interfacePointer).get();
    };
    EXPECT_EQ(identity(&instance.processor()), unknown.get());
    EXPECT_EQ(identity(&instance.controller()), unknown.get());
    EXPECT_TRUE(instance.as<Vst::IEditController2>());
    EXPECT_TRUE(instance.as<Vst::IUnitInfo>());
    EXPECT_TRUE(instance.as<Vst::IProcessContextRequirements>());
    EXPECT_FALSE(instance.as<Steinberg::IPluginCompatibility>());
}

TEST(Vst3Factory, makesObjectsThatNobodyNeedsToInitialise) {
    for (int i = 0; i < 3; ++i)
        const LibraryInstance instance(LibraryInstance::Begin::created);
}

TEST(Vst3Factory, makesAsManyInstancesAsTheHostAsksFor) {
    std::vector<std::unique_ptr<LibraryInstance>> instances;
    for (int i = 0; i < 20; ++i) {
        instances.push_back(std::make_unique<LibraryInstance>());
        instances.back()->set("gain", i - 10.0);
    }
    for (int i = 0; i < 20; ++i)
        EXPECT_NEAR(instances[static_cast<std::size_t>(i)]->plain("gain"), i - 10.0, 1e-9);
    // In another order than they came.
    instances.erase(instances.begin() + 5, instances.begin() + 15);
    EXPECT_NEAR(instances.back()->plain("gain"), 9.0, 1e-9);
}
