#include "TestConfig.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <vector>

using namespace numbering;

// The prefix of a rule is what stands before its first "F"; only the long-distance rule is trimmed.
TEST(CountryRuleItem, PrefixesComeFromTheRules) {
    const char* const cases[][2] = {{"0F", "0"},     {"I", ""}, {"9I", "9"},   {"12", ""},
                                    {"1I2F", "1I2"}, {"", ""},  {"01F", "01"}, {"f", ""}};
    for (const auto& c : cases) {
        Poco::AutoPtr<KesCountryRuleItem> item(
            new KesCountryRuleItem("33", "00", "EF", c[0], c[0], "France"));
        EXPECT_EQ(item->getLongDistPrefix(), c[1]) << c[0];
        EXPECT_EQ(item->getLocalDistPrefix(), c[1]) << c[0];
    }
    Poco::AutoPtr<KesCountryRuleItem> item(
        new KesCountryRuleItem("33", "00", "EF", "  0F ", " 0F ", "France"));
    EXPECT_EQ(item->getLongDistRule(), "0F");
    EXPECT_EQ(item->getLongDistPrefix(), "0");
    EXPECT_EQ(item->getLocalRule(), " 0F ");
    EXPECT_EQ(item->getLocalDistPrefix(), " 0");
}

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

TEST_F(DialRulesItem, CountryIsValidatedAndAFailedChangeKeepsThePreviousOne) {
    EXPECT_NO_THROW(KesDialRulesItem("fr", "0", 4, "1", 0, ""));
    try {
        KesDialRulesItem("FRA", "0", 4, "1", 0, "");
        FAIL();
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(
            e.what(),
            "'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code");
    }
    EXPECT_THROW(KesDialRulesItem("DE", "0", 4, "1", 0, ""), KesUnsupportedCountryException);
    KesDialRulesItem rules;
    EXPECT_EQ(rules.getCountryId(), "FR");
    EXPECT_THROW(rules.setCountryId("DE"), KesUnsupportedCountryException);
    EXPECT_THROW(rules.setCountryId(""), std::invalid_argument);
    EXPECT_EQ(rules.getCountryId(), "FR");
}

TEST_F(DialRulesItem, LengthsAndAreaCodes) {
    KesDialRulesItem rules("FR", "0", -1, "", -3, "");
    EXPECT_EQ(rules.getLocalNbLength(), 0);
    EXPECT_EQ(rules.getExceptNbLength(), 0);
    // The exception length setter tests the value it holds, not the argument.
    KesDialRulesItem fresh;
    fresh.setExceptNbLength(-3);
    EXPECT_EQ(fresh.getExceptNbLength(), -3);
    fresh.setExceptNbLength(5);
    EXPECT_EQ(fresh.getExceptNbLength(), 0);

    rules.setAreaCode(" 1 ,, 2 ");
    EXPECT_EQ(rules.getAreaCode(), "1");
    EXPECT_EQ(rules.getAreaCodesList(), (std::vector<std::string>{"1", "2"}));
    rules.setAreaCode("");
    EXPECT_EQ(rules.getAreaCodesList(), (std::vector<std::string>{"1", "2"}))
        << "an empty text keeps the list";
    rules.setAreaCode(" , ");
    EXPECT_TRUE(rules.getAreaCodesList().empty());
}

TEST_F(DialRulesItem, ToStringEndsWithNul) {
    KesDialRulesItem rules("FR", "0", 4, "1, 2", 3, "00");
    std::string expected = "CountryCode : 'FR', External Prefix : '0', Local length : 4, AreaCode : '1', "
                           "m_areaCodesList :  '1' '2', Except length : 3, Except begin : '00'";
    EXPECT_EQ(rules.ToString(), expected + '\0');
}
