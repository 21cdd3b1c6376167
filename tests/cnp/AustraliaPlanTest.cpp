#include "AreaCodePlanFiles.h"
#include "ConversionTable.h"

#include "numbering/KesCNP_61.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace numbering;
using namespace areacodeplanfiles;
using conversiontable::UNCHANGED;

using AustraliaPlan = AreaCodePlanTest;

TEST_F(AustraliaPlan, DecidedByExactLength) {
    writePlanFile("61", "1", {"2", "3"});
    KesCNP_61 plan;
    KesDialRulesItem rules("AU", "0", 0, "2", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"0212345678", "+61 (2) 12345678"},
                                        {"0512345678", "+61 (0) 512345678"},
                                        {"1300123456", "+61 1300 123456"},
                                        {"1800123456", "+61 1800 123456"},
                                        {"131234", "+61 13 1234"},
                                        {"141234", UNCHANGED},
                                        {"1312345", UNCHANGED},
                                        {"13001234567", UNCHANGED},
                                        {"12345678", "+61 (2) 12345678"},
                                        {"1900123456", UNCHANGED},
                                        {"00212345678", UNCHANGED},
                                        {"021234567", UNCHANGED},
                                        {"", UNCHANGED}});
}

TEST_F(AustraliaPlan, LocalNumbersNeedTranslateAndAnOwnAreaCode) {
    writePlanFile("61", "0", {"2"});
    KesDialRulesItem rules("AU", "0", 0, "2", 0, "");
    KesDialRulesItem noArea("AU", "0", 0, "", 0, "");
    EXPECT_EQ(KesCNP_61().dlr_Country_MakeCanonicalNumber("12345678", &rules), "12345678");
    writePlanFile("61", "1", {"2"});
    EXPECT_EQ(KesCNP_61().dlr_Country_MakeCanonicalNumber("12345678", &noArea), "12345678");
    EXPECT_EQ(KesCNP_61().dlr_Country_MakeCanonicalNumber("1300123456", &noArea), "+61 1300 123456");
}
