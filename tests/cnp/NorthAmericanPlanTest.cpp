#include "ConversionTable.h"
#include "TestConfig.h"

#include "numbering/KesCNP_1.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace conversiontable;
using numbering::KesCNP_1;
using numbering::KesDialRulesItem;

namespace {

class NorthAmericanPlan : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
    KesCNP_1 plan;
};

} // namespace

TEST_F(NorthAmericanPlan, LocalNumbersOfSevenOrEightCharacters) {
    // The outside-line prefix plays no part.
    KesDialRulesItem rules("US", "9", 0, "212", 0, "");
    expectConversions(plan, rules,
                      {{"555123", UNCHANGED},
                       {"5551234", "+1 (212) 5551234"},
                       {"1551234", UNCHANGED},
                       {"0551234", UNCHANGED},
                       {"15551234", "+1 (212) 5551234"},
                       {"05551234", "+1 (212) 5551234"},
                       {"95551234", UNCHANGED},
                       {"11551234", UNCHANGED}, // the seven behind the 1 begin with 1
                       {"555123456", UNCHANGED}});
}

TEST_F(NorthAmericanPlan, NationalNumbersOfTenOrElevenCharacters) {
    KesDialRulesItem rules("US", "", 0, "212", 0, "");
    expectConversions(plan, rules,
                      {{"4155551234", "+1 (415) 5551234"},
                       {"4151551234", UNCHANGED}, // exchange code begins with 1
                       {"4150551234", UNCHANGED}, // exchange code begins with 0
                       {"1155551234", UNCHANGED}, // area code begins with 1
                       {"0155551234", UNCHANGED},
                       {"14155551234", "+1 (415) 5551234"},
                       {"04155551234", "+1 (415) 5551234"},
                       {"24155551234", UNCHANGED},
                       {"14151551234", UNCHANGED},
                       {"114155551234", UNCHANGED}});
}

TEST_F(NorthAmericanPlan, MissingOwnAreaCodeShowsAPlaceholder) {
    KesDialRulesItem rules("US", "", 0, "", 0, "");
    expectConversions(plan, rules, {{"5551234", "+1 (?) 5551234"}, {"15551234", "+1 (?) 5551234"}});
}
