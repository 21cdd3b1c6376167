#include "TestConfig.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <gtest/gtest.h>

#include <vector>

using numbering::KesDialRulesItem;
using numbering::KesUnsupportedCountryException;

namespace {

class DialRulesItem : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::clearAll();
        testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n"
                                                     "fr = 33:00:EF:0F::lower case:\n");
        testconfig::reload();
    }
    void TearDown() override { testconfig::reload(); }
};

} // namespace

TEST_F(DialRulesItem, DefaultInstallation) {
    KesDialRulesItem rules;
    EXPECT_EQ(rules.getCountryId(), "FR");
    EXPECT_EQ(rules.getExtPrefix(), "");
    EXPECT_EQ(rules.getLocalNbLength(), 0);
    EXPECT_EQ(rules.getAreaCode(), "");
    EXPECT_TRUE(rules.getAreaCodesList().empty());
    EXPECT_EQ(rules.getExceptNbLength(), 0);
    EXPECT_EQ(rules.getExceptNbBegin(), "");
}

TEST_F(DialRulesItem, ConstructorValidatesTheCountry) {
    EXPECT_NO_THROW(KesDialRulesItem("fr", "0", 4, "1", 0, ""));
    try {
        KesDialRulesItem("FRA", "0", 4, "1", 0, "");
        FAIL();
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(),
                     "'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code");
    }
    try {
        KesDialRulesItem("DE", "0", 4, "1", 0, "");
        FAIL();
    } catch (const KesUnsupportedCountryException& e) {
        EXPECT_STREQ(e.what(), "Country code 'DE' is not supported");
    }
}

TEST_F(DialRulesItem, FailedSetCountryIdKeepsThePreviousCountry) {
    KesDialRulesItem rules;
    EXPECT_THROW(rules.setCountryId("DE"), KesUnsupportedCountryException);
    EXPECT_THROW(rules.setCountryId(""), std::invalid_argument);
    EXPECT_EQ(rules.getCountryId(), "FR");
    rules.setCountryId("fr");
    EXPECT_EQ(rules.getCountryId(), "fr");
}

TEST_F(DialRulesItem, NegativeLengths) {
    KesDialRulesItem rules("FR", "0", -1, "", -3, "");
    EXPECT_EQ(rules.getLocalNbLength(), 0);
    EXPECT_EQ(rules.getExceptNbLength(), 0);
    rules.setLocalNbLength(-5);
    EXPECT_EQ(rules.getLocalNbLength(), 0);

    // The setter tests the value it holds, not the argument.
    KesDialRulesItem fresh;
    fresh.setExceptNbLength(-3);
    EXPECT_EQ(fresh.getExceptNbLength(), -3);
    fresh.setExceptNbLength(5);
    EXPECT_EQ(fresh.getExceptNbLength(), 0);
    fresh.setExceptNbLength(5);
    EXPECT_EQ(fresh.getExceptNbLength(), 5);
}

TEST_F(DialRulesItem, AreaCodeList) {
    KesDialRulesItem rules;
    rules.setAreaCode(" 1 ,, 2 ");
    EXPECT_EQ(rules.getAreaCode(), "1");
    EXPECT_EQ(rules.getAreaCodesList(), (std::vector<std::string>{"1", "2"}));
    rules.setAreaCode("");
    EXPECT_EQ(rules.getAreaCode(), "");
    EXPECT_EQ(rules.getAreaCodesList(), (std::vector<std::string>{"1", "2"})) << "an empty text keeps the list";
    rules.setAreaCode(" , ");
    EXPECT_EQ(rules.getAreaCode(), "");
    EXPECT_TRUE(rules.getAreaCodesList().empty());
}

TEST_F(DialRulesItem, LocalAndExceptionNumbers) {
    KesDialRulesItem rules("FR", "0", 4, "1", 7, "00");
    EXPECT_TRUE(rules.isLocalNumber("123"));
    EXPECT_FALSE(rules.isLocalNumber("1234"));
    EXPECT_TRUE(rules.isExceptionNumber("001"));
    EXPECT_TRUE(rules.isExceptionNumber("0012345")) << "length plays no part";
    EXPECT_FALSE(rules.isExceptionNumber("0100000"));
    EXPECT_FALSE(rules.isExceptionNumber(""));
    EXPECT_FALSE(rules.isExceptionNumber("0"));

    KesDialRulesItem none("FR", "0", 0, "1", 0, "");
    EXPECT_FALSE(none.isLocalNumber(""));
    EXPECT_FALSE(none.isExceptionNumber("001"));
}

TEST_F(DialRulesItem, ToStringEndsWithNul) {
    KesDialRulesItem rules("FR", "0", 4, "1, 2", 3, "00");
    std::string expected = "CountryCode : 'FR', External Prefix : '0', Local length : 4, AreaCode : '1', "
                           "m_areaCodesList :  '1' '2', Except length : 3, Except begin : '00'";
    expected += '\0';
    EXPECT_EQ(rules.ToString(), expected);
}
