#include "AreaCodePlanFiles.h"
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_54.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

#include <memory>

using namespace numbering;
using namespace areacodeplanfiles;

namespace {

// The standard world gives "AR" the national prefix "0".
class ArgentinaPlan : public AreaCodePlanTest {
protected:
    void SetUp() override {
        AreaCodePlanTest::SetUp();
        writePlanFile("54", "1", {"11", "351"});
    }
};

struct Split {
    const char* number;
    const char* area;
    const char* subscriber;
    bool mobile;
    const char* canonical;
};

} // namespace

TEST_F(ArgentinaPlan, MobileMarkersNineAndFifteen) {
    KesCNP_54 plan;
    KesDialRulesItem rules("AR", "0", 0, "11", 0, "");
    const Split splits[] = {
        {"43215678", "11", "43215678", false, "+54 (11) 43215678"},
        {"4321567", "11", "4321567", false, "+54 (11) 4321567"},
        {"01143215678", "11", "43215678", false, "+54 (11) 43215678"},
        {"0111543215678", "11", "43215678", true, "+54 9 (11) 43215678"},
        {"91143215678", "11", "43215678", true, "+54 9 (11) 43215678"},
        {"1543215678", "11", "43215678", true, "+54 9 (11) 43215678"},
        {"03514321567", "351", "4321567", false, "+54 (351) 4321567"},
        {"0351154321567", "351", "4321567", true, "+54 9 (351) 4321567"},
        {"0221432156", "11", "221432156", false, "+54 (11) 221432156"}, // unknown area code
        {"12345", "11", "12345", false, "+54 (11) 12345"}};
    for (const Split& s : splits) {
        std::unique_ptr<KesCNP_54::StrippedNumber> split(plan.StripNbr(s.number, &rules));
        ASSERT_NE(split, nullptr) << s.number;
        EXPECT_EQ(split->area, s.area) << s.number;
        EXPECT_EQ(split->number, s.subscriber) << s.number;
        EXPECT_EQ(split->mobile, s.mobile) << s.number;
        EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber(s.number, &rules), s.canonical) << s.number;
    }
}

TEST_F(ArgentinaPlan, NumbersThatCannotBeSplitComeBackUnchanged) {
    KesCNP_54 plan;
    KesDialRulesItem rules("AR", "0", 0, "11", 0, "");
    for (const char* number : {"9999999999", "0123456789012345", "09221432156"}) {
        EXPECT_EQ(plan.StripNbr(number, &rules), nullptr) << number;
        EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber(number, &rules), number);
    }
    EXPECT_EQ(plan.StripNbr("43215678", nullptr), nullptr);
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("43215678", nullptr), "43215678");
}

TEST_F(ArgentinaPlan, WithoutAnArgentineRowTheNationalPrefixIsEmpty) {
    KesDialRulesItem rules("AR", "0", 0, "11", 0, "");
    KesCNP_54 plan; // built before the store is reloaded: it must ask the new one
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("1143215678", &rules), "+54 (11) 43215678");
    EXPECT_EQ(plan.dlr_Country_MakeCanonicalNumber("01143215678", &rules), "+54 (11) 01143215678");
}

TEST_F(ArgentinaPlan, StaticsAndTraces) {
    EXPECT_EQ(KesCNP_54::PREFIX_MOBILE_NATIONAL, "15");
    EXPECT_EQ(KesCNP_54::PREFIX_MOBILE_INTERNATIONAL, "9");
    KesDialRulesItem rules("AR", "0", 0, "11", 0, "");
    testhost::Tracing on;
    {
        KesCNP_54 plan;
        plan.dlr_Country_MakeCanonicalNumber("0111543215678", &rules);
        plan.dlr_Country_MakeCanonicalNumber("9999999999", &rules);
    }
    for (const char* line :
         {"DlrArgentinaMakeCanonicalNumber('0111543215678', 'CountryCode : 'AR'",
          "stripNbr('0111543215678', ", "number starts with national prefix:0", "Area code is found:11",
          "Mobile national prefix is found:15", "Argentina stripNumber returns 11/43215678/true",
          "DlrArgentinaMakeCanonicalNumber: strCanPhoneNumber=+54 9 (11) 43215678",
          "Mobile international prefix is found:9",
          "No area code found but prefix mobile international found before: bad format",
          "DlrArgentinaMakeCanonicalNumber: not possible to strip the number",
          "DEBUG N9numbering9KesCNP_54E - KesCNP_54: Destruct"})
        EXPECT_TRUE(testhost::logged(line)) << line;
}
