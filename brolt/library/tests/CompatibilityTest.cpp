// SPDX-License-Identifier: GPL-3.0-or-later
// The text from which hosts learn which older plug-ins the class takes the place of.
#include "brolt/library/tests/support/HostStream.h"
#include "brolt/library/tests/support/LoadedLibrary.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <pluginterfaces/base/iplugincompatibility.h>
#include <public.sdk/source/vst/moduleinfo/moduleinfoparser.h>

#include <sstream>

using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

class PlugInCompatibility : public ::testing::Test {
protected:
    tresult write(HostStream& stream) { return object->getCompatibilityJSON(&stream); }

    static std::string textIn(const HostStream& stream) {
        return {reinterpret_cast<const char*>(stream.bytes.data()), stream.bytes.size()};
    }

    Steinberg::IPtr<Steinberg::IPluginCompatibility> object =
        LoadedLibrary::shared().create<Steinberg::IPluginCompatibility>(kPluginCompatibilityClass);
};

} // namespace

TEST_F(PlugInCompatibility, isWrittenInOneGo) {
    ASSERT_TRUE(object);
    HostStream stream;
    EXPECT_EQ(write(stream), kResultOk);
    EXPECT_EQ(stream.writes, 1);
    EXPECT_GT(stream.bytes.size(), 0U);
}

TEST_F(PlugInCompatibility, isAnArrayWithOneObjectThatNamesTheNewClass) {
    HostStream stream;
    ASSERT_EQ(write(stream), kResultOk);
    const auto document = nlohmann::json::parse(textIn(stream)); // nothing behind it either
    ASSERT_TRUE(document.is_array());
    ASSERT_EQ(document.size(), 1U);
    ASSERT_EQ(document[0].size(), 2U);
    EXPECT_EQ(document[0].at("New"), "565354514D626C716D2062726F6C7400");
    // The VST 2 plug-in's successor by the published convention: this very class.
    const auto old = nlohmann::json::array({"565354514D626C716D2062726F6C7400"});
    EXPECT_EQ(document[0].at("Old"), old);
}

TEST_F(PlugInCompatibility, namesTheClassThatTheFactoryHas) {
    HostStream stream;
    ASSERT_EQ(write(stream), kResultOk);
    const auto document = nlohmann::json::parse(textIn(stream));
    EXPECT_EQ(document[0].at("New"),
              LoadedLibrary::shared().classOf("Audio Module Class").ID().toString());
}

// They take a list without old classes for an error.
TEST_F(PlugInCompatibility, isUnderstoodByHosts) {
    HostStream stream;
    ASSERT_EQ(write(stream), kResultOk);
    std::ostringstream complaints;
    const auto understood =
        Steinberg::ModuleInfoLib::parseCompatibilityJson(textIn(stream), &complaints);
    ASSERT_TRUE(understood) << complaints.str();
    ASSERT_EQ(understood->size(), 1U);
    EXPECT_EQ(understood->at(0).newCID, "565354514D626C716D2062726F6C7400");
    for (const std::string& old : understood->at(0).oldCID) {
        EXPECT_EQ(old.size(), 32U);
        EXPECT_EQ(old.find_first_not_of("0123456789ABCDEF"), std::string::npos) << old;
    }
}

TEST_F(PlugInCompatibility, isTheSameEachTimeAndFromEachObject) {
    HostStream stream;
    ASSERT_EQ(write(stream), kResultOk);
    HostStream again;
    ASSERT_EQ(write(again), kResultOk);
    EXPECT_EQ(again.bytes, stream.bytes);
    const auto other =
        LoadedLibrary::shared().create<Steinberg::IPluginCompatibility>(kPluginCompatibilityClass);
    HostStream third;
    ASSERT_EQ(other->getCompatibilityJSON(&third), kResultOk);
    EXPECT_EQ(third.bytes, stream.bytes);
}

TEST_F(PlugInCompatibility, fromAHostWithoutAStreamIsNotWritten) {
    EXPECT_NE(object->getCompatibilityJSON(nullptr), kResultOk);
}
