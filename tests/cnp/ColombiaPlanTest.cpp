#include "ConversionTable.h"
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_57.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

using namespace conversiontable;
using numbering::KesCNP_57;
using numbering::KesDialRulesItem;

namespace {

class ColombiaPlan : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
    KesCNP_57 plan;
};

} // namespace

TEST_F(ColombiaPlan, ShapesByLength) {
    KesDialRulesItem rules("CO", "0", 0, "1", 0, "");
    expectConversions(plan, rules,
                      {{"123456", UNCHANGED},
                       {"1234567", "+57 (1) 1234567"},
                       {"12345678", UNCHANGED},
                       {"012345678", UNCHANGED},
                       {"0511234567", "+57 (1) 1234567"},
                       {"5511234567", UNCHANGED},
                       {"0330012345", "+57 (300) 12345"},
                       {"04561234567", "+57 (1) 234567"},
                       {"045611234567", "+57 (1) 1234567"},
                       {"033001234567", "+57 (300) 1234567"},
                       {"0456812345678", "+57 (8) 12345678"}});
}

TEST_F(ColombiaPlan, EmptyOwnAreaCodeIsWrittenAsEmptyParentheses) {
    KesDialRulesItem rules("CO", "0", 0, "", 0, "");
    expectConversions(plan, rules, {{"1234567", "+57 () 1234567"}});
}

TEST_F(ColombiaPlan, TracesTheResultAndItsDestruction) {
    KesDialRulesItem rules("CO", "0", 0, "1", 0, "");
    testhost::Tracing on;
    KesCNP_57* traced = new KesCNP_57();
    traced->dlr_Country_MakeCanonicalNumber("0511234567", &rules);
    traced->dlr_Country_MakeCanonicalNumber("12345678", &rules);
    traced->release();
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering9KesCNP_57E - KesCNP_57()"));
    // The rules' text ends in a NUL character, so the sink shows the line up to the rules only.
    EXPECT_TRUE(testhost::logged("DlrArgentinaMakeCanonicalNumber('0511234567', 'CountryCode : 'CO'"));
    EXPECT_TRUE(testhost::logged("DlrArgentinaMakeCanonicalNumber('12345678', 'CountryCode : 'CO'"));
    EXPECT_TRUE(testhost::logged("KesCNP_57: Destruct"));
}

TEST(ColombiaPlanFiles, NamedAfterTheCallingCode) {
    EXPECT_EQ(KesCNP_57::CNP_FILE, testconfig::directory() + "tz310cnp_57.properties");
    EXPECT_EQ(KesCNP_57::CNP_DEFAULT_FILE, testconfig::directory() + "tz310cnp_57_default.properties");
}
