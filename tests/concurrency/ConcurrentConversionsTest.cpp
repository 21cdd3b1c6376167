// Conversions from many threads, cold and under reloads, the watcher of the configuration directory
// and the reload that refuses errors, on the shipped world and copies of it; the sanitizer builds of
// the test command see every race and leak besides.
#include "ExampleNumbers.h"
#include "Suite.h"

#include "numbering/KesCharsTreeElement.h"
#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesConfigurationRejected.h"
#include "numbering/KesConfigurationWatcher.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <random>
#include <thread>
#include <unistd.h>

namespace {

const int THREADS = 8;

struct Case {
    std::string country;
    std::vector<std::string> numbers;
};

std::vector<Case> everyCountry() {
    std::vector<Case> cases;
    for (const shipped::CountryExamples& row : shipped::exampleNumbers()) {
        Case c{row.iso2,
               {row.nationalPrefix + row.fixed, "+" + row.callingCode + " " + row.fixed,
                row.internationalPrefix + "4989123456", "+49 89 123456", "+33 1 23 45 67 89"}};
        if (!row.mobile.empty())
            c.numbers.push_back(row.nationalPrefix + row.mobile);
        cases.push_back(std::move(c));
    }
    return cases;
}

std::vector<std::vector<std::string>> convert(const Case& c) {
    KesDialRulesItem site(c.country, "0", 4, "", 0, "");
    std::vector<std::vector<std::string>> results;
    for (const std::string& number : c.numbers)
        results.push_back(testhost::everyConversion(&site, number));
    return results;
}

/// Back to the directory of the start; after a reset every object the library made is gone.
class ConcurrentConversions : public ::testing::Test {
protected:
    void TearDown() override {
        KesNumberingRules::reload(std::string());
        KesNumberingRules::resetInstance();
        EXPECT_EQ(KesCNP::_count, 0);
        EXPECT_EQ(KesDialable::_count, 0);
        EXPECT_EQ(KesAreaCodeTree::_count, 0);
        EXPECT_EQ(KesCharsTreeElement::_count, 0);
        EXPECT_EQ(KesCountryRuleItem::_count, 0);
        EXPECT_EQ(KesClid::_count, 0);
    }
};

} // namespace

// First in the program: nothing of the library exists before the threads start.
TEST_F(ConcurrentConversions, ColdStartGivesEveryThreadTheSingleThreadedResults) {
    const std::vector<Case> cases = everyCountry();
    ASSERT_GT(cases.size(), 200u);
    std::vector<std::vector<std::vector<std::string>>> expected;
    for (const Case& c : cases)
        expected.push_back(convert(c));
    KesNumberingRules::resetInstance(); // cold again: no facade, store, plan or strategy

    std::atomic<int> waiting{THREADS}; // every thread goes at the same moment
    std::atomic<int> mismatches{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < THREADS; ++t)
        threads.emplace_back([&, t] {
            std::vector<std::size_t> order(cases.size());
            for (std::size_t i = 0; i < order.size(); ++i)
                order[i] = i;
            std::shuffle(order.begin(), order.end(), std::mt19937(t));
            --waiting;
            while (waiting.load() > 0)
                std::this_thread::yield();
            for (std::size_t i : order)
                if (convert(cases[i]) != expected[i])
                    ++mismatches;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(mismatches.load(), 0);
}

namespace {

namespace fs = std::filesystem;
using Files = std::vector<std::pair<std::string, std::string>>;

/// A copy of the shipped configuration in a temporary directory of its own, with some files replaced.
class ConfigurationCopy {
public:
    ConfigurationCopy(const std::string& name, const Files& files)
        : path(fs::temp_directory_path() /
               ("numbering-concurrency-" + std::to_string(getpid()) + "-" + name)) {
        fs::create_directories(path);
        for (const fs::directory_entry& entry : fs::directory_iterator(NUMBERING_SHIPPED_DATA))
            fs::copy_file(entry.path(), path / entry.path().filename(), fs::copy_options::overwrite_existing);
        write(files);
    }
    ~ConfigurationCopy() { fs::remove_all(path); }
    ConfigurationCopy(const ConfigurationCopy&) = delete;
    ConfigurationCopy& operator=(const ConfigurationCopy&) = delete;

    std::string directory() const { return path.string() + "/"; }
    void write(const Files& files) const {
        for (const auto& file : files)
            std::ofstream(path / file.first, std::ios::binary) << file.second;
    }

private:
    fs::path path;
};

/// The shipped `fileName` with `lines` ("KEY=value\n") appended: the last value of a key counts, and
/// every country keeps a mask, so that the configuration check finds no error.
std::string shippedWith(const std::string& fileName, const std::string& lines) {
    std::ifstream file(std::string(NUMBERING_SHIPPED_DATA) + fileName);
    return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>()) + lines;
}

/// Numbers whose every form differs between the variants: area codes, masks, international prefix.
const std::pair<const char*, const char*> RELOADED[] = {
    {"DE", "089123456"},       {"DE", "+49 891 23456"},     {"FR", "01 23 45 67 89"},
    {"FR", "+49 (89) 123456"}, {"GB", "+33 1 23 45 67 89"}, {"US", "+49 891 234567"},
};

/// Two variants of the shipped configuration that convert RELOADED otherwise.
const Files VARIANT_A = {
    {"dlr_cnp_mask.properties",
     shippedWith("dlr_cnp_mask_default.properties", "Mask_33_1=+C (a) x xx xx xx xx\nMask_49_1=+C (A) x\n"
                                                    "Mask_44_1=+C (A) x\nMask_1_1=+C (A) x\n")},
    {"tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\n"},
    {"dialingrules.properties", shippedWith("dialingrules_default.properties", "")}};
const Files VARIANT_B = {
    {"dlr_cnp_mask.properties",
     shippedWith("dlr_cnp_mask_default.properties", "Mask_33_1=+C (a) xxxxxxxxx\nMask_49_1=+C (A) xx xx x\n"
                                                    "Mask_44_1=+C (A) xx x\nMask_1_1=+C (A) xxx x\n")},
    {"tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=891\n"},
    {"dialingrules.properties",
     shippedWith("dialingrules_default.properties", "FR=33:000:EF:0F:0F:France:P\n")}};

/// The canonical, GSM and dialled forms of one number.
std::vector<std::string> convertOnce(const std::pair<const char*, const char*>& typed) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem site(typed.first, "0", 4, "", 0, "");
    return {rules->makeCanonicalNumber(&site, typed.second, ""),
            rules->makeGSMCanonicalNumber(&site, typed.second, false),
            rules->makePhoneNumber(&site, typed.second)};
}

std::vector<std::vector<std::string>> convertAll() {
    std::vector<std::vector<std::string>> results;
    for (const auto& typed : RELOADED)
        results.push_back(convertOnce(typed));
    return results;
}

/// Threads converting RELOADED until stopped, each result checked against the answers it may meet.
class Converters {
public:
    explicit Converters(std::vector<std::vector<std::vector<std::string>>> expected)
        : answers(std::move(expected)) {
        for (int t = 0; t < THREADS; ++t)
            threads.emplace_back([this, t] { run(t); });
    }

    std::vector<std::string> stop() {
        converting = false;
        for (std::thread& thread : threads)
            thread.join();
        EXPECT_GT(conversions.load(), THREADS);
        return unexpected;
    }

private:
    void run(int t) {
        const std::size_t count = std::size(RELOADED);
        for (std::size_t i = static_cast<std::size_t>(t) % count; converting.load(); i = (i + 1) % count) {
            // A pause now and then leaves the reloading thread some of the two cores.
            if (i == 0)
                std::this_thread::sleep_for(std::chrono::microseconds(100));
            const std::vector<std::string> forms = convertOnce(RELOADED[i]);
            ++conversions;
            for (std::size_t form = 0; form < forms.size(); ++form)
                if (std::none_of(answers.begin(), answers.end(),
                                 [&](const auto& answer) { return answer[i][form] == forms[form]; })) {
                    std::lock_guard<std::mutex> lock(unexpectedMutex);
                    unexpected.push_back(forms[form]);
                }
        }
    }

    const std::vector<std::vector<std::vector<std::string>>> answers;
    std::atomic<bool> converting{true};
    std::atomic<int> conversions{0};
    std::vector<std::string> unexpected;
    std::mutex unexpectedMutex;
    std::vector<std::thread> threads;
};

} // namespace

// Each reload takes the files of its moment: the next variant is written as soon as a reload returns.
TEST_F(ConcurrentConversions, EachReloadIsTheFilesOfItsMoment) {
    ConfigurationCopy world("rewritten", VARIANT_A);
    KesNumberingRules::reload(world.directory());
    const auto inA = convertAll();
    world.write(VARIANT_B);
    KesNumberingRules::reload(world.directory());
    const auto inB = convertAll();
    for (std::size_t i = 0; i < inA.size(); ++i)
        EXPECT_NE(inA[i], inB[i]) << RELOADED[i].second;

    Converters converters({inA, inB});
    for (int n = 0; n < 1000; ++n) {
        KesNumberingRules::reload();
        world.write(n % 2 == 0 ? VARIANT_A : VARIANT_B);
    }
    const std::vector<std::string> unexpected = converters.stop();
    EXPECT_TRUE(unexpected.empty()) << unexpected.size()
                                    << " mixed results, the first: " << unexpected.front();
    EXPECT_EQ(convertAll(), inA) << "the last reload took the first variant, written before it";
}

// A host's cache, its plans, strategies and failed countries stay across a reset of the store alone.
TEST_F(ConcurrentConversions, CachesHeldAcrossAResetOfTheStore) {
    ConfigurationCopy world(
        "held", {{"dialingrules.properties", "FR=33:00:F:F::France:P\nCO=57:00:F:F::Colombia:P\n"}});
    KesNumberingRules::reload(world.directory());
    KesCNPManager* plans = KesCNPManager::getInstance();
    KesDialableManager* strategies = KesDialableManager::getInstance();
    KesCNP* france = plans->getCNP("FR");
    KesDialable* colombia = strategies->getDialable("57");
    ASSERT_NE(france, nullptr);
    EXPECT_EQ(plans->getCNP("DE"), nullptr) << "no German row yet";

    world.write({{"dialingrules.properties", "FR=33:00:F:F::France:P\nDE=49:00:F:F::Germany:P\n"}});
    KesNumberingConfig::resetInstance();
    EXPECT_TRUE(KesNumberingConfig::getInstance()->validCountryCode("DE")) << "the store read the new file";
    EXPECT_EQ(KesCNPManager::getInstance(), plans);
    EXPECT_EQ(KesDialableManager::getInstance(), strategies);
    EXPECT_EQ(plans->getCNP("FR"), france);
    EXPECT_EQ(strategies->getDialable("57"), colombia);
    EXPECT_EQ(plans->getCNP("DE"), nullptr) << "a failed country stays failed for the life of its manager";
    EXPECT_TRUE(plans->isCountryNotFound("DE"));

    KesCNPManager::resetInstance();
    EXPECT_EQ(KesDialableManager::getInstance(), strategies) << "the strategies stay";
    EXPECT_NE(KesCNPManager::getInstance()->getCNP("DE"), nullptr) << "a new manager tries again";
}

// Reloads from two threads at once while the files stay put, beside the configuration check (a host
// checks a directory before it reloads from it): the answers never change.
TEST_F(ConcurrentConversions, ConcurrentReloadsAndChecksOfTheSameFiles) {
    ConfigurationCopy world("still", VARIANT_B);
    KesNumberingRules::reload(world.directory());
    Converters converters({convertAll()});
    std::vector<std::thread> reloaders;
    for (int t = 0; t < 2; ++t)
        reloaders.emplace_back([] {
            for (int n = 0; n < 100; ++n)
                KesNumberingRules::reload();
        });
    std::size_t findings = 0;
    for (int round = 0; round < 2; ++round)
        findings += KesConfigurationCheck::check(NUMBERING_SHIPPED_DATA).findings.size();
    for (std::thread& reloader : reloaders)
        reloader.join();
    const std::vector<std::string> unexpected = converters.stop();
    EXPECT_TRUE(unexpected.empty()) << unexpected.size()
                                    << " other results, the first: " << unexpected.front();
    EXPECT_EQ(findings, 0u) << "the shipped configuration checks clean";
}

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

// An installer's new directory renamed into the place of the watched one is watched in its turn.
TEST_F(WatchedWorld, ADirectoryReplacedAsAWholeIsWatchedAgain) {
    KesConfigurationWatcher watcher(world.directory(), SETTLE);
    watcher.start();
    const fs::path watched = fs::path(world.directory()).parent_path(), aside = watched.string() + ".old";
    ConfigurationCopy replacement("replacement", VARIANT_B);
    fs::rename(watched, aside);
    fs::rename(fs::path(replacement.directory()).parent_path(), watched);
    fs::remove_all(aside);
    EXPECT_TRUE(eventually([&] { return convertAll() == inB; }));
    world.write(VARIANT_A);
    EXPECT_TRUE(eventually([&] { return convertAll() == inA; }));
}

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

// A reload that refuses errors keeps the running configuration; a plain reload takes even them.
TEST(ReloadPolicy, ErrorsAreRefusedAndTheRunningConfigurationStays) {
    ConfigurationCopy good("good", VARIANT_A), broken("broken", VARIANT_B), garbled("garbled", VARIANT_B);
    ASSERT_EQ(KesConfigurationCheck::check(good.directory()).status(), 1) << "warnings, which never refuse";
    KesNumberingRules::reload(good.directory(), ReloadPolicy::RefuseErrors);
    const auto before = convertAll();
    broken.write({{"dialingrules.properties", "\n"}}); // no usable row
    try {
        KesNumberingRules::reload(broken.directory(), ReloadPolicy::RefuseErrors);
        ADD_FAILURE() << "taken";
    } catch (const KesConfigurationRejected& refused) {
        EXPECT_EQ(refused.directory(), broken.directory());
        EXPECT_EQ(refused.firstError().file, broken.directory() + "dialingrules.properties");
        EXPECT_EQ(refused.report().status(), 2);
        EXPECT_EQ(std::string(refused.what())
                      .rfind("Refused the configuration of " + broken.directory() +
                                 ", the running configuration stays: " + refused.firstError().text(),
                             0),
                  0u)
            << refused.what();
    }
    EXPECT_EQ(convertAll(), before);
    EXPECT_EQ(KesNumberingConfig::configDirectory(), good.directory());

    garbled.write({{"dlr_cnp_mask.properties", testhost::utf16(VARIANT_B[0].second)}}); // saved as UTF-16
    KesNumberingRules::reload(garbled.directory(), ReloadPolicy::Plain);
    EXPECT_NE(convertAll(), before);
    EXPECT_EQ(KesNumberingConfig::configDirectory(), garbled.directory());
    KesNumberingRules::reload(std::string());
}
