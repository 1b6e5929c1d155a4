// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sources keep the rules between the layers, and the check that says so finds planted mistakes.

#include "tests/layering/LayerCheck.h"

#include "tests/layering/LayerTable.h"
#include "tests/sources/SourceFiles.h"
#include "tests/sources/TemporaryTree.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// One header in every place, so that includes have something to lead to.
void writeHeaders(const TemporaryTree& tree) {
    for (const char* header : {"brolt/signal/A.h", "plugin-model/A.h", "services/Log.h",
                               "brolt/model/A.h", "QMShell/hosting/A.h", "tools/brolt-host/A.h",
                               "tests/support/A.h", "brolt/signal/tests/A.h"}) {
        tree.write(header, "#pragma once\n");
    }
}

std::vector<std::string> check(const std::string& path, const std::string& text) {
    const TemporaryTree tree;
    writeHeaders(tree);
    tree.write(path, text);
    return checkLayers(tree.root());
}

} // namespace

TEST(LayerCheck, theSourcesOfThisProjectKeepTheRules) {
    EXPECT_THAT(checkLayers(BROLT_SOURCE_ROOT), IsEmpty());
}

TEST(LayerCheck, everyLayerOfTheTableButTheToolHasSources) {
    const std::vector<std::string> files = findSourceFiles(BROLT_SOURCE_ROOT);
    for (const Layer& layer : layerTable()) {
        if (layer.name == "tool") {
            continue;
        }
        std::size_t count = 0;
        for (const std::string& file : files) {
            count += layerOf(file) == &layer ? 1U : 0U;
        }
        EXPECT_GT(count, 0U) << layer.name;
    }
}

TEST(LayerCheck, includesOfOneselfAndOfSeenLayersAreFine) {
    EXPECT_THAT(check("brolt/model/B.cpp", "#include \"brolt/model/A.h\"\n"
                                           "#include \"brolt/signal/A.h\"\n"
                                           "#include \"plugin-model/A.h\"\n"
                                           "#include \"services/Log.h\"\n"
                                           "\n"
                                           "#include <vector>\n"),
                IsEmpty());
}

TEST(LayerCheck, anIncludeOfAHigherLayerIsFoundWithItsFileAndLine) {
    EXPECT_THAT(check("brolt/signal/B.cpp", "#include \"brolt/signal/A.h\"\n"
                                            "  #  include \"brolt/model/A.h\"\n"),
                ElementsAre("brolt/signal/B.cpp:2: the signal layer does not see the product model "
                            "layer (\"brolt/model/A.h\")"));
}

TEST(LayerCheck, theModelAndTheSignalLayerDoNotSeeEachOther) {
    EXPECT_THAT(check("plugin-model/B.h", "#include \"brolt/signal/A.h\"\n"),
                ElementsAre("plugin-model/B.h:1: the model layer does not see the signal layer "
                            "(\"brolt/signal/A.h\")"));
    EXPECT_THAT(check("brolt/signal/B.h", "#include \"services/Log.h\"\n"),
                ElementsAre("brolt/signal/B.h:1: the signal layer does not see the model layer "
                            "(\"services/Log.h\")"));
}

TEST(LayerCheck, hostingDoesNotSeeTheProduct) {
    EXPECT_THAT(check("QMShell/hosting/B.cpp", "#include \"brolt/model/A.h\"\n"),
                ElementsAre("QMShell/hosting/B.cpp:1: the hosting layer does not see the product "
                            "model layer (\"brolt/model/A.h\")"));
}

TEST(LayerCheck, testsOfAnEditorMayHaveARealPlugInAndTheEditorMayNot) {
    EXPECT_THAT(check("widgets/ui/tests/ATest.cpp", "#include \"brolt/model/A.h\"\n"), IsEmpty());
    EXPECT_THAT(check("widgets/ui/A.cpp", "#include \"brolt/model/A.h\"\n"),
                ElementsAre("widgets/ui/A.cpp:1: the widgets layer does not see the product model "
                            "layer (\"brolt/model/A.h\")"));
}

TEST(LayerCheck, testsOfALayerSeeNoMoreThanTheLayer) {
    EXPECT_THAT(check("plugin-model/tests/BTest.cpp", "#include <gtest/gtest.h>\n"
                                                      "#include \"tests/support/A.h\"\n"
                                                      "#include \"QMShell/hosting/A.h\"\n"),
                ElementsAre("plugin-model/tests/BTest.cpp:3: the model layer does not see the "
                            "hosting layer (\"QMShell/hosting/A.h\")"));
}

TEST(LayerCheck, shippedCodeIncludesNoTestCode) {
    EXPECT_THAT(check("brolt/signal/B.cpp", "#include \"brolt/signal/tests/A.h\"\n"
                                            "#include \"tests/support/A.h\"\n"),
                ElementsAre("brolt/signal/B.cpp:1: \"brolt/signal/tests/A.h\" belongs to the tests",
                            "brolt/signal/B.cpp:2: \"tests/support/A.h\" belongs to the tests"));
}

TEST(LayerCheck, juceIsFoundWhereALayerIsNotBuiltOnIt) {
    EXPECT_THAT(check("QMShell/hosting/B.cpp", "#include <juce_core/juce_core.h>\n"),
                ElementsAre("QMShell/hosting/B.cpp:1: the hosting layer may not include JUCE "
                            "(juce_core/juce_core.h)"));
    EXPECT_THAT(
        check("brolt/model/tests/BTest.cpp", "#include \"JuceHeader.h\"\n"),
        ElementsAre("brolt/model/tests/BTest.cpp:1: the product model layer may not include "
                    "JUCE (JuceHeader.h)"));
    EXPECT_THAT(check("services/LogB.cpp", "#include <juce_core/juce_core.h>\n"),
                ElementsAre("services/LogB.cpp:1: the model layer may not include JUCE "
                            "(juce_core/juce_core.h)"));
    EXPECT_THAT(check("services/preferences/B.cpp", "#include <juce_core/juce_core.h>\n"),
                IsEmpty());
    EXPECT_THAT(check("tools/brolt-host/B.cpp", "#include <juce_core/juce_core.h>\n"), IsEmpty());
}

TEST(LayerCheck, thirdPartyAndPlatformHeadersAreFoundBelowTheTools) {
    EXPECT_THAT(check("plugin-model/B.cpp", "#include <sndfile.h>\n"),
                ElementsAre("plugin-model/B.cpp:1: <sndfile.h> is not allowed to the model layer"));
    EXPECT_THAT(
        check("plugin-model/B.cpp", "#include <CLI/CLI.hpp>\n"),
        ElementsAre("plugin-model/B.cpp:1: <CLI/CLI.hpp> is not allowed to the model layer"));
    EXPECT_THAT(check("tools/brolt-host/B.cpp", "#include <sndfile.h>\n"), IsEmpty());
}

TEST(LayerCheck, anIncludeThatIsNotGivenFromTheRootIsFound) {
    EXPECT_THAT(check("brolt/signal/B.cpp", "#include \"A.h\"\n"),
                ElementsAre("brolt/signal/B.cpp:1: \"A.h\" names no file from the root"));
}

TEST(LayerCheck, aPathThatWindsThroughAnotherFolderIsFollowedToItsEnd) {
    EXPECT_THAT(check("brolt/signal/B.cpp", "#include \"brolt/signal/../model/A.h\"\n"),
                ElementsAre("brolt/signal/B.cpp:1: the signal layer does not see the product model "
                            "layer (\"brolt/signal/../model/A.h\")"));
}

TEST(LayerCheck, aFileOfNoLayerIsFound) {
    EXPECT_THAT(check("services/Mail.h", "#pragma once\n"),
                ElementsAre("services/Mail.h:1: belongs to no layer; see "
                            "tests/layering/LayerTable.cpp"));
}
