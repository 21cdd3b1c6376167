#include "AreaCodePlanFiles.h"
#include "ConversionTable.h"
#include "TestHost.h"

#include "numbering/KesCNP_31.h"
#include "numbering/KesCNP_32.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace numbering;
using namespace areacodeplanfiles;
using conversiontable::UNCHANGED;

using SinglePassPlans = AreaCodePlanTest;

TEST_F(SinglePassPlans, NetherlandsFromSixCharactersAnyLocalNumber) {
    writePlanFile("31", "1", {"20", "10"});
    KesCNP_31 plan;
    KesDialRulesItem rules("NL", "0", 0, "20", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"0201234567", "+31 (20) 1234567"},
                                        {"0591234567", "+31 (0) 591234567"},
                                        {"1234567", "+31 (20) 1234567"},
                                        {"020", UNCHANGED},
                                        {"02012", UNCHANGED},
                                        {"020123", "+31 (20) 123"},
                                        {"0031201234567", "+31 (0) 031201234567"}});
    writePlanFile("31", "0", {"20", "10"});
    EXPECT_EQ(KesCNP_31().dlr_Country_MakeCanonicalNumber("1234567", &rules), "1234567");
}

TEST_F(SinglePassPlans, BelgiumFromNineCharactersNoLocalRule) {
    writePlanFile("32", "1", {"2", "9"});
    KesCNP_32 plan;
    KesDialRulesItem rules("BE", "0", 0, "2", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"12345678", UNCHANGED},
                                        {"123456789", UNCHANGED},
                                        {"02123456", UNCHANGED},
                                        {"021234567", "+32 (2) 1234567"},
                                        {"0501234567", "+32 (0) 501234567"}});
}

TEST_F(SinglePassPlans, UnitedKingdomLocalNumbersBeginWithTwoToNine) {
    writePlanFile("44", "1", {"20", "161"});
    KesCNP_44 plan;
    KesDialRulesItem rules("GB", "9", 0, "20", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"71234567", "+44 (20) 71234567"},
                                        {"212345", "+44 (20) 212345"},
                                        {"1234567", UNCHANGED},
                                        {"12345", UNCHANGED},
                                        {"01611234567", "+44 (161) 1234567"},
                                        {"0123456", "+44 (0) 123456"}});
    writePlanFile("44", "0", {"20"});
    EXPECT_EQ(KesCNP_44().dlr_Country_MakeCanonicalNumber("71234567", &rules), "71234567");
}

TEST_F(SinglePassPlans, IrelandSplitsUnknownAreaCodesAfterTwoDigits) {
    writePlanFile("353", "1", {"1"});
    KesCNP_353 plan;
    KesDialRulesItem rules("IE", "0", 0, "1", 0, "");
    KesDialRulesItem noArea("IE", "0", 0, "", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"011234567", "+353 (1) 1234567"},
                                        {"0911234567", "+353 (91) 1234567"},
                                        {"0123", UNCHANGED},
                                        {"01234", "+353 (1) 234"},
                                        {"1234567", "+353 (1) 1234567"}});
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("1234567", &noArea), "1234567");
}

TEST_F(SinglePassPlans, ClosingTraceOnlyForNumbersLongEnough) {
    writePlanFile("353", "1", {"1"});
    writePlanFile("31", "1", {"20"});
    KesCNP_353 ireland;
    KesCNP_31 netherlands;
    KesDialRulesItem irish("IE", "0", 0, "1", 0, "");
    KesDialRulesItem dutch("NL", "0", 0, "20", 0, "");
    testhost::Tracing on;
    ireland.dlr_Country_MakeCanonicalNumber("011234567", &irish);
    netherlands.dlr_Country_MakeCanonicalNumber("0201234567", &dutch);
    netherlands.dlr_Country_MakeCanonicalNumber("020", &dutch);
    EXPECT_TRUE(testhost::logged(
        "N9numbering10KesCNP_353E - DlrCountryMakeCanonicalNumber returns '+353 (1) 1234567'"));
    EXPECT_TRUE(testhost::logged(
        "N9numbering9KesCNP_31E - dlr_Country_MakeCanonicalNumber returns '+31 (20) 1234567'"));
    EXPECT_EQ(testhost::countLogged("returns '"), 2);
    EXPECT_TRUE(
        testhost::logged("'201234567' isn't an area code, but begins with '20' which is an area code"));
}
