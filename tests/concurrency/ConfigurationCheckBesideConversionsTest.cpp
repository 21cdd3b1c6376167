// The configuration check beside conversions and reloads (a host checks a directory before it
// reloads from it): it shares nothing with them. Built again under the sanitizers by the test
// command.
#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using namespace numbering;

TEST(ConfigurationCheckBesideConversions, SharesNothingWithThem) {
    std::atomic<bool> checking{true};
    std::atomic<int> empty{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 2; ++t)
        threads.emplace_back([&] {
            KesDialRulesItem munich("DE", "0", 4, "89", 0, "");
            while (checking)
                if (KesNumberingRules::getInstance()->makeCanonicalNumber(&munich, "0301234567", "").empty())
                    ++empty;
        });
    threads.emplace_back([&] {
        while (checking)
            KesNumberingRules::reload();
    });
    std::size_t findings = 0;
    for (int round = 0; round < 2; ++round)
        findings += KesConfigurationCheck::check(NUMBERING_SHIPPED_DATA).findings.size();
    checking = false;
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(findings, 0u) << "the shipped configuration checks clean";
    EXPECT_EQ(empty.load(), 0);
    KesNumberingRules::resetInstance();
}
