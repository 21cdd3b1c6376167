#include "Suite.h"

#include "numbering/KesSiteFile.h"

// The prefix of a rule is what stands before its first "F"; only the long-distance rule is trimmed.
TEST(CountryRuleItem, PrefixesComeFromTheRules) {
    const char* const cases[][2] = {{"0F", "0"},     {"I", ""}, {"9I", "9"},   {"12", ""},
                                    {"1I2F", "1I2"}, {"", ""},  {"01F", "01"}, {"f", ""}};
    for (const auto& c : cases) {
        Poco::AutoPtr<KesCountryRuleItem> item(
            new KesCountryRuleItem("33", "00", "EF", c[0], c[0], "France"));
        EXPECT_TRUE(item->getLongDistPrefix() == c[1] && item->getLocalDistPrefix() == c[1]) << c[0];
    }
    Poco::AutoPtr<KesCountryRuleItem> item(
        new KesCountryRuleItem("33", "00", "EF", "  0F ", " 0F ", "France"));
    EXPECT_EQ(item->getLongDistRule() + "|" + item->getLongDistPrefix(), "0F|0");
    EXPECT_EQ(item->getLocalRule() + "|" + item->getLocalDistPrefix(), " 0F | 0");
}

namespace {

class DialRulesItem : public testconfig::WorldTest {
protected:
    DialRulesItem() : WorldTest("FR = 33:00:EF:0F::France:P\nfr = 33:00:EF:0F::lower case:\n") {}
};

} // namespace

TEST_F(DialRulesItem, CountryIsValidatedAndAFailedChangeKeepsThePreviousOne) {
    EXPECT_NO_THROW(KesDialRulesItem("fr", "0", 4, "1", 0, ""));
    EXPECT_EQ(
        testhost::thrownText<std::invalid_argument>([] { KesDialRulesItem("FRA", "0", 4, "1", 0, ""); }),
        "'strCountryCode' parameter can not be null and must be an Alpha-2 ISO 3166 country code");
    EXPECT_THROW(KesDialRulesItem("DE", "0", 4, "1", 0, ""), KesUnsupportedCountryException);
    KesDialRulesItem rules;
    EXPECT_EQ(rules.getCountryId(), "FR");
    EXPECT_THROW(rules.setCountryId("DE"), KesUnsupportedCountryException);
    EXPECT_THROW(rules.setCountryId(""), std::invalid_argument);
    EXPECT_EQ(rules.getCountryId(), "FR");
}

TEST_F(DialRulesItem, LengthsAreaCodesAndText) {
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

    KesDialRulesItem paris("FR", "0", 4, "1, 2", 3, "00");
    EXPECT_EQ(paris.ToString(), std::string("CountryCode : 'FR', External Prefix : '0', Local length : 4, "
                                            "AreaCode : '1', m_areaCodesList :  '1' '2', Except length : 3, "
                                            "Except begin : '00'") +
                                    '\0');
    EXPECT_FALSE(paris.isLocalNumber("1234"));
}

// Every setting of a site file reaches the KesDialRulesItem (the tool's tests cover check()).
TEST_F(DialRulesItem, SiteFileMakesTheHostsInstallation) {
    const std::string path = testconfig::directory() + "site.properties";
    testconfig::write("site.properties", "# Paris\ncountry = FR\next_prefix = 9\narea_codes = 1, 2\n"
                                         "local_length = 5\nexcept_length = 3\nexcept_begin = 11\n");
    EXPECT_TRUE(KesSiteFile::read(path).check().empty());
    const std::unique_ptr<KesDialRulesItem> rules = KesSiteFile::read(path).makeDialRulesItem();
    EXPECT_EQ(rules->ToString(), KesDialRulesItem("FR", "9", 5, "1, 2", 3, "11").ToString());
    testconfig::write("site.properties", "country = DE\n");
    const KesSiteFile elsewhere = KesSiteFile::read(path);
    ASSERT_EQ(elsewhere.check().size(), 1u);
    EXPECT_EQ(elsewhere.check()[0].line, 1);
    EXPECT_THROW(elsewhere.makeDialRulesItem(), KesUnsupportedCountryException);
    EXPECT_THROW(KesSiteFile::read(testconfig::directory() + "missing.properties"), std::runtime_error);
}
