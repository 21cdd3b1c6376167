#include "ConversionTable.h"
#include "TestConfig.h"

#include "numbering/KesCNP_64.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <string>

using namespace conversiontable;
using numbering::KesCNP_64;
using numbering::KesDialable;
using numbering::KesDialRulesItem;
using numbering::KesNumberingConfig;

namespace {

class NewZealandPlan : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
    KesCNP_64 plan;
};

} // namespace

TEST_F(NewZealandPlan, FixedLinesHaveOneDigitAreaCodes) {
    KesDialRulesItem rules("NZ", "", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"031234567", "+64 (3) 1234567"},
                       {"041234567", "+64 (4) 1234567"},
                       {"061234567", "+64 (6) 1234567"},
                       {"071234567", "+64 (7) 1234567"},
                       {"091234567", "+64 (9) 1234567"},
                       {"051234567", UNCHANGED},
                       {"081234567", UNCHANGED},
                       {"01234567", UNCHANGED},
                       {"03123456", UNCHANGED},
                       {"0312345678", UNCHANGED}});
}

TEST_F(NewZealandPlan, MobileNumbersHaveSixToEightDigitsAfterTheirPrefix) {
    KesDialRulesItem rules("NZ", "", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"02112345", UNCHANGED},
                       {"021123456", "+64 (21) 123456"},
                       {"0211234567", "+64 (21) 1234567"},
                       {"02112345678", "+64 (21) 12345678"},
                       {"021123456789", UNCHANGED},
                       {"0201234567", "+64 (20) 1234567"},
                       {"0271234567", "+64 (27) 1234567"},
                       {"0291234567", "+64 (29) 1234567"},
                       {"0231234567", UNCHANGED},
                       {"0251234567", UNCHANGED},
                       {"024012345", "+64 (240) 12345"},
                       {"0240123456", UNCHANGED}});
}

TEST_F(NewZealandPlan, ServiceNumbersKeepTheirServiceCode) {
    KesDialRulesItem rules("NZ", "", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"080012345", UNCHANGED},
                       {"0800123456", "+64 (800) 123456"},
                       {"08001234567", "+64 (800) 1234567"},
                       {"080012345678", UNCHANGED},
                       {"050812345", UNCHANGED},
                       {"0508123456", "+64 (508) 123456"},
                       {"05081234567", UNCHANGED},
                       {"09001234", UNCHANGED},
                       {"090012345", "+64 (900) 12345"}, // premium rate, not Auckland
                       {"0900123456", UNCHANGED}});
}

TEST_F(NewZealandPlan, LocalNumbersTakeTheOwnOneDigitAreaCode) {
    struct Case {
        const char* ownArea;
        const char* number;
        const char* expected;
    } cases[] = {
        {"9", "3456789", "+64 (9) 3456789"}, {"09", "3456789", "+64 (9) 3456789"},
        {"3", "2345678", "+64 (3) 2345678"}, {"9", "1234567", UNCHANGED},
        {"9", "0234567", UNCHANGED},         {"", "3456789", UNCHANGED},
        {"21", "3456789", UNCHANGED},        {"5", "3456789", UNCHANGED},
        {"0", "3456789", UNCHANGED},         {"9", "345678", UNCHANGED},
        {"9", "34567890", UNCHANGED},
    };
    for (const Case& c : cases) {
        KesDialRulesItem rules("NZ", "", 0, c.ownArea, 0, "");
        SCOPED_TRACE(std::string("own area code '") + c.ownArea + "'");
        expectConversions(plan, rules, {{c.number, c.expected}});
    }
}

TEST_F(NewZealandPlan, NumbersBehindTheOutsideLinePrefix) {
    KesDialRulesItem rules("NZ", "1", 0, "4", 0, "");
    expectConversions(plan, rules,
                      {{"1091234567", "+64 (9) 1234567"},
                       {"10211234567", "+64 (21) 1234567"},
                       {"10800123456", "+64 (800) 123456"},
                       {"13456789", "+64 (4) 3456789"},
                       {"1051234567", UNCHANGED},
                       {"1", UNCHANGED},
                       {"2091234567", UNCHANGED}});
    // With "0" as outside-line prefix the national number itself is tried first.
    KesDialRulesItem zero("NZ", "0", 0, "4", 0, "");
    expectConversions(plan, zero,
                      {{"090012345", "+64 (900) 12345"},
                       {"0091234567", "+64 (9) 1234567"},
                       {"03456789", "+64 (4) 3456789"}});
}

TEST_F(NewZealandPlan, WhatIsNotPlainDigitsStaysUnchanged) {
    KesDialRulesItem rules("NZ", "", 0, "9", 0, "");
    expectConversions(
        plan, rules,
        {{"", UNCHANGED}, {"09*234567", UNCHANGED}, {"345678#", UNCHANGED}, {"+6491234567", UNCHANGED}});
}

// Every canonical form must dial back to the national number it came from, through the generic
// strategy with the New Zealand long-distance rule, and from abroad with the country code.
TEST_F(NewZealandPlan, CanonicalFormsDialBackToTheSameDigits) {
    KesDialRulesItem rules("NZ", "", 0, "", 0, "");
    KesDialRulesItem french("FR", "0", 0, "1", 0, "");
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    KesDialable strategy;
    const char* nationals[] = {"031234567", "091234567",  "021123456",   "0211234567", "02112345678",
                               "024012345", "0800123456", "08001234567", "0508123456", "090012345"};
    for (const char* national : nationals) {
        std::string canonical = plan.dlr_Country_MakeCanonicalNumber(national, &rules);
        std::string::size_type open = canonical.find('(');
        std::string::size_type close = canonical.find(')');
        ASSERT_EQ(canonical.compare(0, 5, "+64 ("), 0) << canonical;
        ASSERT_NE(close, std::string::npos) << canonical;
        ASSERT_EQ(canonical.compare(close, 2, ") "), 0) << canonical;
        std::string area = canonical.substr(open + 1, close - open - 1);
        std::string subscriber = canonical.substr(close + 2);
        std::string country = "64";
        EXPECT_EQ(strategy.makeLongDistDialableNumber(area, subscriber, config->getCountryRule("NZ"), &rules),
                  national);
        EXPECT_EQ(
            strategy.makeInternationalDialableNumber(country, area, subscriber, config->getCountryRule("FR")),
            "0064" + std::string(national + 1));
    }
}
