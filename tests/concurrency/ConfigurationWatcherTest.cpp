// The watcher of the configuration directory and the reload that refuses errors, on copies of the
// shipped configuration.
#include "ReloadedWorld.h"
#include "Suite.h"

#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesConfigurationRejected.h"
#include "numbering/KesConfigurationWatcher.h"

#include <chrono>
#include <fstream>
#include <thread>

using namespace reloaded;

namespace {

const std::chrono::milliseconds SETTLE(50);
const std::chrono::seconds PATIENCE(60); // a loaded machine under a sanitizer; never waited out otherwise

template <class Condition> bool eventually(Condition condition) {
    const auto giveUp = std::chrono::steady_clock::now() + PATIENCE;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > giveUp)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

int threadCount() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("Threads:", 0) == 0)
            return std::stoi(line.substr(8));
    return -1;
}

const std::string LOGGED_AS = "INFO N9numbering23KesConfigurationWatcherE - ";

/// A world in VARIANT_A, reloaded, with the results of both variants.
class WatchedWorld : public ::testing::Test {
protected:
    void SetUp() override {
        {
            ConfigurationCopy expected("expected", VARIANT_B);
            KesNumberingRules::reload(expected.directory());
            inB = convertAll();
        }
        KesNumberingRules::reload(world.directory(), ReloadPolicy::RefuseErrors);
        inA = convertAll();
        ASSERT_NE(inA, inB);
        threadsBefore = threadCount();
        testhost::clear();
    }
    void TearDown() override {
        EXPECT_TRUE(eventually([&] { return threadCount() == threadsBefore; }))
            << "the watcher's threads ended";
        KesNumberingRules::reload(std::string());
    }

    ConfigurationCopy world{"watched", VARIANT_A};
    std::vector<std::vector<std::string>> inA, inB;
    int threadsBefore = 0;
};

} // namespace

TEST_F(WatchedWorld, ABrokenEditIsRefusedAndLoggedThenTheCorrectionTaken) {
    KesConfigurationWatcher watcher(world.directory(), SETTLE);
    EXPECT_EQ(threadCount(), threadsBefore) << "no thread until the host starts it";
    watcher.start();
    EXPECT_TRUE(watcher.running());
    EXPECT_GT(threadCount(), threadsBefore);
    world.write({{"dlr_cnp_mask.properties", testhost::utf16(VARIANT_B[0].second)}});
    const std::string refused = LOGGED_AS + "Refused the configuration of " + world.directory() +
                                ", the running configuration stays: " + world.directory() +
                                "dlr_cnp_mask.properties: error: ";
    ASSERT_TRUE(eventually([&] { return testhost::logged(refused); }));
    EXPECT_TRUE(testhost::logged(" other finding"));
    EXPECT_EQ(convertAll(), inA);

    world.write(VARIANT_B);
    EXPECT_TRUE(eventually([&] { return convertAll() == inB; }));
    EXPECT_TRUE(eventually([&] {
        return testhost::logged(LOGGED_AS + "Reloaded the configuration of " + world.directory() +
                                " after a change");
    }));
} // the destructor stops it

TEST_F(WatchedWorld, StoppingDropsAPendingChange) {
    KesConfigurationWatcher watcher(world.directory(), std::chrono::hours(1));
    watcher.start();
    world.write(VARIANT_B); // waits an hour for quiet files
    const auto asked = std::chrono::steady_clock::now();
    watcher.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - asked, PATIENCE) << "stopping waits for no settle time";
    EXPECT_FALSE(watcher.running());
    EXPECT_EQ(convertAll(), inA);
    EXPECT_FALSE(testhost::logged(LOGGED_AS));
}

namespace {

struct Edit {
    const char* what;
    ConfigurationCopy::Files files; // written over VARIANT_B
    ReloadPolicy policy;
    const char* refusedFor; // the file of the first error, or null when the reload takes the edit
};

// Made when the test runs: the variants are another file's statics.
std::vector<Edit> edits() {
    return {
        {"dialing rules without a usable row",
         {{"dialingrules.properties", "\n"}},
         ReloadPolicy::RefuseErrors,
         "dialingrules.properties"},
        {"masks saved as UTF-16, plain reload",
         {{"dlr_cnp_mask.properties", testhost::utf16(VARIANT_B[0].second)}},
         ReloadPolicy::Plain,
         nullptr},
        {"warnings only (masks that lack the default's countries)", {}, ReloadPolicy::RefuseErrors, nullptr},
    };
}

} // namespace

TEST(ReloadPolicy, ErrorsAreRefusedAndTheRunningConfigurationStays) {
    ConfigurationCopy good("good", VARIANT_A);
    ASSERT_EQ(KesConfigurationCheck::check(good.directory()).status(), 1) << "warnings, which never refuse";
    for (const Edit& edit : edits()) {
        SCOPED_TRACE(edit.what);
        KesNumberingRules::reload(good.directory(), ReloadPolicy::RefuseErrors);
        const auto before = convertAll();
        ConfigurationCopy edited("edited", VARIANT_B);
        edited.write(edit.files);
        if (edit.refusedFor == nullptr) {
            KesNumberingRules::reload(edited.directory(), edit.policy);
            EXPECT_NE(convertAll(), before);
            EXPECT_EQ(KesNumberingConfig::configDirectory(), edited.directory());
            continue;
        }
        try {
            KesNumberingRules::reload(edited.directory(), edit.policy);
            ADD_FAILURE() << "taken";
        } catch (const KesConfigurationRejected& refused) {
            EXPECT_EQ(refused.directory(), edited.directory());
            EXPECT_EQ(refused.firstError().file, edited.directory() + edit.refusedFor);
            EXPECT_EQ(refused.report().status(), 2);
            EXPECT_EQ(std::string(refused.what())
                          .rfind("Refused the configuration of " + edited.directory() +
                                     ", the running configuration stays: " + refused.firstError().text(),
                                 0),
                      0u)
                << refused.what();
        }
        EXPECT_EQ(convertAll(), before);
        EXPECT_EQ(KesNumberingConfig::configDirectory(), good.directory());
    }
    KesNumberingRules::reload(std::string());
}
