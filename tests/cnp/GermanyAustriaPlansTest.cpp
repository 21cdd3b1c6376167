#include "AreaCodePlanFiles.h"
#include "ConversionTable.h"

#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace numbering;
using namespace areacodeplanfiles;
using conversiontable::UNCHANGED;

namespace {

class GermanyAustriaPlans : public AreaCodePlanTest {
protected:
    void SetUp() override {
        AreaCodePlanTest::SetUp();
        writePlanFile("49", "1", {"30", "89", "221"});
        writePlanFile("43", "1", {"1", "316", "662"});
    }
};

} // namespace

TEST_F(GermanyAustriaPlans, GermanyFirstAsItStandsThenBehindTheOutsideLinePrefix) {
    KesCNP_49 plan;
    KesDialRulesItem rules("DE", "0", 5, "89", 0, "");
    // Pass 2 strips the outside-line prefix when at most 16 characters follow it; an unknown area
    // code, and any national number too short to split, end behind the own area code.
    conversiontable::expectConversions(plan, rules,
                                       {{"0301234567", "+49 (30) 1234567"},
                                        {"00301234567", "+49 (30) 1234567"},
                                        {"1234567", "+49 (89) 1234567"},
                                        {"0451234567", "+49 (89) 451234567"},
                                        {"030", "+49 (89) 030"},
                                        {"0123", "+49 (89) 123"},
                                        {"030123", "+49 (30) 123"},
                                        {"03012", "+49 (89) 3012"},
                                        {"12", UNCHANGED},
                                        {"", UNCHANGED},
                                        {"00301234567890123", "+49 (30) 1234567890123"},
                                        {"003012345678901234", "+49 (89) 003012345678901234"}});
}

TEST_F(GermanyAustriaPlans, OutsideLinePrefixOtherThanTheNationalOne) {
    KesCNP_49 plan;
    KesDialRulesItem rules("DE", "9", 5, "89", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"90301234567", "+49 (30) 1234567"},
                                        {"91234567", "+49 (89) 1234567"},
                                        {"9001234", UNCHANGED},
                                        {"0301234567", "+49 (30) 1234567"},
                                        {"912", "+49 (89) 912"}});
}

TEST_F(GermanyAustriaPlans, NationalNumbersShorterThanTheLongestAreaCodeWaitForPass2) {
    KesDialRulesItem rules("DE", "9", 5, "89", 0, "");
    writePlanFile("49", "1", {"30"});
    EXPECT_EQ(KesCNP_49().dlr_Country_MakeCanonicalNumber("030123", &rules), "+49 (30) 123");
    writePlanFile("49", "1", {"30", "332031"});
    EXPECT_EQ(KesCNP_49().dlr_Country_MakeCanonicalNumber("030123", &rules), "+49 (89) 030123");
}

TEST_F(GermanyAustriaPlans, WithoutTranslateOrOwnAreaCodeLocalNumbersStay) {
    writePlanFile("49", "0", {"30"});
    KesCNP_49 plan;
    KesDialRulesItem rules("DE", "0", 5, "89", 0, "");
    KesDialRulesItem noArea("DE", "0", 5, "", 0, "");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("1234567", &rules), "1234567");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("0301234567", &rules), "+49 (30) 1234567");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("0451234567", &noArea), "+49 () 451234567");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("0301234567", nullptr), "0301234567");
}

TEST_F(GermanyAustriaPlans, AustriaTakesFourDigitsWhereTheAreaCodeIsUnknown) {
    KesCNP_43 plan;
    KesDialRulesItem rules("AT", "0", 4, "1", 0, "");
    conversiontable::expectConversions(plan, rules,
                                       {{"0316123456", "+43 (316) 123456"},
                                        {"0512345678", "+43 (5123) 45678"},
                                        {"0512345", "+43 (1) 512345"},
                                        {"0316123", "+43 (316) 123"},
                                        {"27722", "+43 (1) 27722"},
                                        {"00316123456", "+43 (316) 123456"}});
}
