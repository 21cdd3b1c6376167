// Conversions from many threads once the caches are warm: the host creates the singletons and
// converts one number per country first, then every thread must get the single-threaded answers.
// Built again under ThreadSanitizer by the test command.
#include "TestConfig.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace numbering;

namespace {

struct Installation {
    const char* country;
    const char* extPrefix;
    const char* areaCodes;
};

const Installation INSTALLATIONS[] = {
    {"FR", "0", "1"}, {"DE", "0", "89"}, {"GB", "9", "20"}, {"US", "9", "212"},
    {"RU", "0", "495"}, {"IT", "0", ""}, {"CH", "0", "44"}, {"AU", "0", "2"},
};

const char* const NUMBERS[] = {
    "01 23 45 67 89", "0612345678",   "+49 (89) 123456", "089 1234567", "00441234567890", "+1 212 5551234",
    "5551234",        "84951234567",  "+7 495 1234567",  "0441234567",  "0800123456",     "*12#",
    "123",            "+33 (1) 23456789", "0212345678",  "12***34",     "0123x",          "+",
};

std::vector<std::string> convertAll(KesNumberingRules* rules, const std::vector<std::unique_ptr<KesDialRulesItem>>& sites) {
    std::vector<std::string> results;
    for (const auto& site : sites) {
        for (const char* number : NUMBERS) {
            results.push_back(rules->makeCanonicalNumber(site.get(), number, ""));
            results.push_back(rules->makePhoneNumber(site.get(), number));
            results.push_back(rules->makeGSMCanonicalNumber(site.get(), number, false));
            KesClid* clid = rules->makeClid(site.get(), number);
            results.push_back(clid == nullptr ? "null" : clid->getNumber() + "/" + clid->getOrigin()->name);
            if (clid != nullptr)
                clid->release();
        }
    }
    return results;
}

} // namespace

TEST(ConcurrentConversions, EveryThreadGetsTheSingleThreadedResults) {
    testconfig::useStandardWorld();
    testconfig::write("tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=221\n");
    testconfig::write("tz310cnp_61.properties", "Translate=1\nAC_0000=2\nAC_0001=3\n");
    testconfig::write("dlr_cnp_mask.properties", "Mask_33_1 = +C (a) x xx xx xx xx\nMask_49_1 = +C (A) xxx xxxx\n");
    testconfig::reload();

    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::vector<std::unique_ptr<KesDialRulesItem>> sites;
    for (const Installation& site : INSTALLATIONS)
        sites.emplace_back(new KesDialRulesItem(site.country, site.extPrefix, 4, site.areaCodes, 0, ""));
    const std::vector<std::string> expected = convertAll(rules, sites); // warms every cache

    const int threads = 8;
    const int rounds = 20;
    std::atomic<int> mismatches{0};
    std::vector<std::thread> workers;
    int clidsBefore = KesClid::_count;
    for (int t = 0; t < threads; ++t)
        workers.emplace_back([&] {
            for (int round = 0; round < rounds; ++round)
                if (convertAll(rules, sites) != expected)
                    ++mismatches;
        });
    for (std::thread& worker : workers)
        worker.join();

    EXPECT_EQ(mismatches.load(), 0);
    EXPECT_EQ(KesClid::_count, clidsBefore) << "every caller identity was released";
    sites.clear();
    testconfig::reload();
}
