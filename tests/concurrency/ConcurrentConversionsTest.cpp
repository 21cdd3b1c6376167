// Conversions from many threads, cold and under reloads, on the shipped world; the sanitizer builds
// of the test command see every race and leak besides.
#include "ExampleNumbers.h"
#include "ReloadedWorld.h"
#include "Suite.h"

#include "numbering/KesCharsTreeElement.h"
#include "numbering/KesConfigurationCheck.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <random>
#include <thread>

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

using namespace reloaded;

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
        const std::size_t count = RELOADED.size();
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
        EXPECT_NE(inA[i], inB[i]) << RELOADED[i].number;

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
