#include "ConversionTable.h"
#include "TestConfig.h"

#include "numbering/KesCNP_41.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace conversiontable;
using numbering::KesCNP_41;
using numbering::KesDialRulesItem;

namespace {

class SwissPlan : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
    KesCNP_41 plan;
};

} // namespace

TEST_F(SwissPlan, ConvertsNineAndTenCharacterNationalNumbers) {
    KesDialRulesItem rules("CH", "0", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"", UNCHANGED},
                       {"12345678", UNCHANGED},
                       {"01234567", UNCHANGED}, // 8 characters, although it begins with 01
                       {"011234567", "+41 (1) 1234567"},
                       {"021234567", UNCHANGED},
                       {"0441234567", "+41 (44) 1234567"},
                       {"0800123456", "+41 800123456"},
                       {"4412345678", UNCHANGED},
                       {"00441234567", "+41 (44) 1234567"},
                       {"10441234567", UNCHANGED}, // 11 characters not behind the prefix
                       {"000441234567", UNCHANGED},
                       {"00800123456", "+41 800123456"}});
}

TEST_F(SwissPlan, TakesNineOrTenCharactersBehindALongerOutsideLinePrefix) {
    KesDialRulesItem rules("CH", "99", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"99011234567", "+41 (1) 1234567"},
                       {"990441234567", "+41 (44) 1234567"},
                       {"9941234567", UNCHANGED},
                       {"9900441234567", UNCHANGED},
                       {"99021234567", UNCHANGED}});
}

TEST_F(SwissPlan, EightCharactersBehindThePrefixAreNotANationalNumber) {
    KesDialRulesItem rules("CH", "999", 0, "", 0, "");
    expectConversions(plan, rules, {{"99901234567", UNCHANGED}, {"999011234567", "+41 (1) 1234567"}});
}

TEST_F(SwissPlan, WithoutOutsideLinePrefixLongNumbersStayUnchanged) {
    KesDialRulesItem rules("CH", "", 0, "", 0, "");
    expectConversions(plan, rules, {{"00441234567", UNCHANGED}, {"0441234567", "+41 (44) 1234567"}});
}
