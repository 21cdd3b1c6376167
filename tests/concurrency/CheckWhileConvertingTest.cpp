// The configuration check runs beside conversions (a host checks files before a reload): it shares
// nothing with them. Built again under ThreadSanitizer by the test command.
#include "TestConfig.h"

#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using namespace numbering;

TEST(CheckWhileConverting, ShareNothing) {
    testconfig::useStandardWorld();
    testconfig::write("tz310cnp_49.properties", "Translate=1\nAC_0000=30\nAC_0001=89\nAC_0002=221\n");
    testconfig::reload();
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem munich("DE", "0", 4, "89", 0, "");
    const std::string expected = rules->makeCanonicalNumber(&munich, "0301234567", ""); // warms the caches

    std::atomic<bool> checking{true};
    std::atomic<int> mismatches{0};
    std::vector<std::thread> converters;
    for (int t = 0; t < 2; ++t)
        converters.emplace_back([&] {
            while (checking)
                if (rules->makeCanonicalNumber(&munich, "0301234567", "") != expected)
                    ++mismatches;
        });
    int findings = 0;
    for (int round = 0; round < 2; ++round)
        findings += static_cast<int>(KesConfigurationCheck::check(testconfig::directory()).findings.size());
    checking = false;
    for (std::thread& converter : converters)
        converter.join();

    EXPECT_EQ(mismatches.load(), 0);
    EXPECT_GT(findings, 0); // the standard world has no plan files for most of its plans
    testconfig::reload();
}
