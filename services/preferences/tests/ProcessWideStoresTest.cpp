// SPDX-License-Identifier: GPL-3.0-or-later
// The three stores of the process: shared by everybody, saved by their timer, at the toolkit's
// shutdown and at the end of the process.
#include "services/preferences/PreferencesStores.h"

#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

#include <chrono>
#include <cstdlib>
#include <fstream>

using preferencesTest::storedValues;
using QM::PreferencesStoreId;

namespace {

class ProcessWideStores : public preferencesTest::ProcessStoresTest {};

/// Those that need the message loop.
class ProcessWideStoresTimer : public preferencesTest::ProcessStoresTest {
protected:
    void SetUp() override {
        if (!canRunLoop())
            GTEST_SKIP() << "no window can be made here (Wine without a display driver), so there "
                            "are no timers";
    }
};

/// Tests that end in a process of their own, which runs this program again for the one test and
/// takes the folder over from the first.
class ProcessWideStoresAtExit : public ::testing::Test {
protected:
    ProcessWideStoresAtExit() {
        testing::FLAGS_gtest_death_test_style = "threadsafe";
        if (std::getenv(preferencesTest::processFolderVariable) == nullptr)
            setVariable(directory.emplace().path().string());
    }

    ~ProcessWideStoresAtExit() override { setVariable(""); }

    [[nodiscard]] const std::filesystem::path& folder() const { return directory->path(); }

    static void writeEverywhere() {
        for (const auto id : QM::allPreferencesStores)
            QM::preferencesStore(id).setValue("key", 7);
    }

    void expectWrittenEverywhere() const {
        for (const auto id : QM::allPreferencesStores)
            EXPECT_EQ(storedValues(preferencesTest::storeFile(folder(), id))["key"], "7");
    }

private:
    static void setVariable(const std::string& value) {
#ifdef _WIN32
        _putenv_s(preferencesTest::processFolderVariable, value.c_str());
#else
        if (value.empty())
            unsetenv(preferencesTest::processFolderVariable);
        else
            setenv(preferencesTest::processFolderVariable, value.c_str(), 1);
#endif
    }

    std::optional<TemporaryDirectory> directory;
};

} // namespace

TEST_F(ProcessWideStores, areReadFromTheirFiles) {
    EXPECT_EQ(QM::shellStore().getFile(),
              preferencesTest::toJuceFile(file(PreferencesStoreId::shell)));
    EXPECT_EQ(QM::plugInsStore().getFile(),
              preferencesTest::toJuceFile(file(PreferencesStoreId::plugIns)));
    EXPECT_EQ(QM::consoleStore().getFile(),
              preferencesTest::toJuceFile(file(PreferencesStoreId::console)));
}

TEST_F(ProcessWideStores, laterCallsAnswerTheSameSet) {
    for (const auto id : QM::allPreferencesStores)
        EXPECT_EQ(&QM::preferencesStore(id), &QM::preferencesStore(id));
    EXPECT_EQ(&QM::preferencesStore(PreferencesStoreId::shell), &QM::shellStore());
    EXPECT_EQ(&QM::preferencesStore(PreferencesStoreId::plugIns), &QM::plugInsStore());
    EXPECT_EQ(&QM::preferencesStore(PreferencesStoreId::console), &QM::consoleStore());
    EXPECT_NE(&QM::shellStore(), &QM::plugInsStore());
    EXPECT_NE(&QM::shellStore(), &QM::consoleStore());
}

TEST_F(ProcessWideStores, aValueIsSeenByEverybodyAtOnce) {
    for (const auto id : QM::allPreferencesStores) {
        QM::preferencesStore(id).setValue("key", 5);
        EXPECT_EQ(QM::preferencesStore(id).getIntValue("key", 0), 5);
    }
}

TEST_F(ProcessWideStores, everyStoreIsSavedAtTheToolkitsShutdown) {
    for (const auto id : QM::allPreferencesStores)
        QM::preferencesStore(id).setValue("key", 5);
    shutDownToolkit();
    for (const auto id : QM::allPreferencesStores)
        EXPECT_EQ(storedValues(file(id))["key"], "5");
    startToolkit();
}

TEST_F(ProcessWideStores, theShellAndThePlugInsStoreOutliveTheToolkit) {
    const auto* const shell = &QM::shellStore();
    const auto* const plugIns = &QM::plugInsStore();
    QM::shellStore().setValue("key", 5);
    QM::plugInsStore().setValue("key", 6);
    shutDownToolkit();
    // A file that came from elsewhere in between is not read: the set in memory is still there.
    std::filesystem::remove(file(PreferencesStoreId::shell));
    std::filesystem::remove(file(PreferencesStoreId::plugIns));
    startToolkit();
    EXPECT_EQ(&QM::shellStore(), shell);
    EXPECT_EQ(&QM::plugInsStore(), plugIns);
    EXPECT_EQ(QM::shellStore().getIntValue("key", 0), 5);
    EXPECT_EQ(QM::plugInsStore().getIntValue("key", 0), 6);
}

TEST_F(ProcessWideStores, theConsoleStoreGoesWithTheToolkitAndIsOpenedAgain) {
    QM::consoleStore().setValue("key", 5);
    shutDownToolkit();
    ASSERT_EQ(storedValues(file(PreferencesStoreId::console))["key"], "5");
    std::filesystem::remove(file(PreferencesStoreId::console));
    startToolkit();
    EXPECT_EQ(QM::consoleStore().getIntValue("key", 0), 0) << "read from the file, which is gone";
    QM::consoleStore().setValue("key", 6);
    shutDownToolkit();
    EXPECT_EQ(storedValues(file(PreferencesStoreId::console))["key"], "6");
    startToolkit();
    EXPECT_EQ(QM::consoleStore().getIntValue("key", 0), 6);
}

TEST_F(ProcessWideStoresTimer, threeSecondsAfterTheLastChangeTheTimerSaves) {
    using Clock = std::chrono::steady_clock;
    // The timer counts in slices of up to a tenth of a second.
    constexpr std::chrono::milliseconds slice(100);
    const auto shellPath = file(PreferencesStoreId::shell);
    std::filesystem::remove(shellPath);

    const auto first = Clock::now();
    auto last = first;
    QM::shellStore().setValue("key", 5);
    const bool saved = runLoopUntil([&] {
        const auto now = Clock::now();
        if (last == first && now - first >= std::chrono::seconds(1)) {
            QM::shellStore().setValue("key", 6);
            last = now;
        }
        return std::filesystem::exists(shellPath);
    });
    const auto after = Clock::now() - last;

    ASSERT_TRUE(saved);
    ASSERT_NE(last, first);
    EXPECT_EQ(storedValues(shellPath)["key"], "6");
    EXPECT_FALSE(QM::shellStore().needsToBeSaved());
    EXPECT_GE(after, std::chrono::milliseconds(3000) - slice);
}

// The toolkit's shutdown takes its timers along; a timer that still counts then would be lost to
// the ones started later.
TEST_F(ProcessWideStoresTimer, theTimerSavesAgainAfterTheToolkitWasRestarted) {
    for (const auto id : QM::allPreferencesStores)
        QM::preferencesStore(id).setValue("key", 5);
    shutDownToolkit();
    startToolkit();
    for (const auto id : QM::allPreferencesStores)
        QM::preferencesStore(id).setValue("key", 6);
    EXPECT_TRUE(runLoopUntil([] {
        for (const auto id : QM::allPreferencesStores) {
            if (QM::preferencesStore(id).needsToBeSaved())
                return false;
        }
        return true;
    }));
    for (const auto id : QM::allPreferencesStores)
        EXPECT_EQ(storedValues(file(id))["key"], "6");
}

TEST_F(ProcessWideStoresTimer, writesThatFailedAreTriedAgainWithTheNextChange) {
    const auto folder = file(PreferencesStoreId::shell).parent_path();
    std::filesystem::remove_all(folder);
    std::ofstream(folder) << "in the way";
    QM::shellStore().setValue("key", 5);
    EXPECT_FALSE(QM::shellStore().saveIfNeeded());
    std::filesystem::remove(folder);
    QM::shellStore().setValue("other", 6);
    EXPECT_TRUE(runLoopUntil([] { return !QM::shellStore().needsToBeSaved(); }));
    EXPECT_EQ(storedValues(file(PreferencesStoreId::shell)),
              (std::map<std::string, std::string>{{"key", "5"}, {"other", "6"}}));
}

// A host may end without closing its plug-ins: the toolkit is not shut down then.
TEST_F(ProcessWideStoresAtExit, theEndOfTheProcessWritesWhatIsPending) {
    EXPECT_EXIT(
        {
            juce::initialiseJuce_GUI();
            writeEverywhere();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    expectWrittenEverywhere();
}

TEST_F(ProcessWideStoresAtExit, aShutdownAfterTheStoresHaveGoneFindsNothingOfTheirs) {
    EXPECT_EXIT(
        {
            // Made before the stores and therefore destroyed after them. The toolkit's list of what
            // to delete has to be there even earlier, or its shutdown reads a list that is gone.
            class First : juce::DeletedAtShutdown {};
            (void)First();
            static const juce::ScopedJuceInitialiser_GUI toolkit;
            writeEverywhere();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
    expectWrittenEverywhere();
}

// A library that a host merely looks at leaves no trace.
TEST_F(ProcessWideStoresAtExit, aProcessThatDoesNotUseThemTouchesNoFile) {
    EXPECT_EXIT(std::exit(0), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(std::filesystem::is_empty(folder()));
}
