#include "AreaCodePlanFiles.h"
#include "ConversionTable.h"

#include "numbering/KesCNP_52.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable_52.h"
#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;
using namespace areacodeplanfiles;
using conversiontable::UNCHANGED;

using MexicoPlan = AreaCodePlanTest;

TEST_F(MexicoPlan, NationalNumbersOfTenDigitsWithOrWithoutTheirPrefixes) {
    KesCNP_52 plan;
    KesDialRulesItem rules("MX", "0", 0, "55", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"5512345678", "+52 (55) 12345678"},
                                        {"5612345678", "+52 (56) 12345678"},
                                        {"3312345678", "+52 (33) 12345678"},
                                        {"8112345678", "+52 (81) 12345678"},
                                        {"2221234567", "+52 (222) 1234567"},
                                        {"015512345678", "+52 (55) 12345678"},
                                        {"012221234567", "+52 (222) 1234567"},
                                        {"0445512345678", "+52 (155) 12345678"},
                                        {"0452221234567", "+52 (1222) 1234567"},
                                        {"0115512345678", "+52 (155) 12345678"},
                                        {"15512345678", "+52 (155) 12345678"},
                                        {"05512345678", "+52 (55) 12345678"},
                                        {"0015512345678", "+52 (55) 12345678"}});
}

TEST_F(MexicoPlan, WhatItCannotPlaceComesBackUnchanged) {
    KesCNP_52 plan;
    KesDialRulesItem rules("MX", "9", 0, "55", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"1512345678", UNCHANGED},
                                        {"0123456789", UNCHANGED},
                                        {"551234567", UNCHANGED},
                                        {"55123456789", UNCHANGED},
                                        {"044551234567", UNCHANGED},
                                        {"0465512345678", UNCHANGED},
                                        {"011234567", UNCHANGED},
                                        {"55-1234-5678", UNCHANGED},
                                        {"1234567", UNCHANGED},
                                        {"", UNCHANGED},
                                        {"9", UNCHANGED}});
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("5512345678", nullptr), "5512345678");
}

TEST_F(MexicoPlan, LocalNumbersTakeTheOwnAreaCodeWhenTheyMakeTenDigits) {
    KesDialRulesItem mexicoCity("MX", "0", 0, "55", 0, "");
    KesDialRulesItem puebla("MX", "0", 0, "222", 0, "");
    KesDialRulesItem noArea("MX", "0", 0, "", 0, "");
    KesCNP_52 plan;
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("12345678", &mexicoCity), "12345678") << "begins with 1";
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("22345678", &mexicoCity), "+52 (55) 22345678");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("2345678", &puebla), "+52 (222) 2345678");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("22345678", &puebla), "22345678");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("2345678", &noArea), "2345678");
    writePlanFile("52", "0", {});
    EXPECT_EQ(KesCNP_52().dlr_Country_MakeCanonicalNumber("22345678", &mexicoCity), "22345678");
}

TEST_F(MexicoPlan, AreaCodesOfThePlanFileComeBeforeTheTwoDigitRule) {
    writePlanFile("52", "1", {"2222"});
    KesCNP_52 plan;
    KesDialRulesItem rules("MX", "0", 0, "55", 0, "");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("2222123456", &rules), "+52 (2222) 123456");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("2221234567", &rules), "+52 (222) 1234567");
    for (const char* code : {"55", "56", "33", "81", "5512345678"})
        EXPECT_TRUE(plan.isTwoDigitsAreaCode(code)) << code;
    for (const char* code : {"222", "5", "", "57", "155"})
        EXPECT_FALSE(plan.isTwoDigitsAreaCode(code)) << code;
}

// The canonical forms must dial back to the national digits through the Mexican strategy.
TEST_F(MexicoPlan, CanonicalFormsDialBackToTheRightDigits) {
    struct Case {
        const char* ownArea;
        const char* typed;
        const char* dialled;
    } cases[] = {{"55", "0445512345678", "0445512345678"}, {"33", "0445512345678", "0455512345678"},
                 {"33", "0115512345678", "0455512345678"}, {"33", "015512345678", "015512345678"},
                 {"55", "2221234567", "012221234567"},     {"222", "0442221234567", "0442221234567"}};
    KesCNP_52 plan;
    KesDialable_52 strategy;
    KesCountryRuleItem* mexico = KesNumberingConfig::getInstance()->getCountryRule("MX");
    ASSERT_NE(mexico, nullptr);
    for (const Case& c : cases) {
        KesDialRulesItem rules("MX", "0", 0, c.ownArea, 0, "");
        std::string canonical = plan.dlr_Country_MakeCanonicalNumber(c.typed, &rules);
        std::size_t open = canonical.find('(');
        std::size_t close = canonical.find(')');
        ASSERT_EQ(canonical.rfind("+52 (", 0), 0u) << c.typed;
        std::string area = canonical.substr(open + 1, close - open - 1);
        std::string number = canonical.substr(close + 2);
        EXPECT_EQ(strategy.makeLongDistDialableNumber(area, number, mexico, &rules), c.dialled) << canonical;
    }
}
