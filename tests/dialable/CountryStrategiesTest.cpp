#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable_52.h"
#include "numbering/KesDialable_61.h"
#include "numbering/KesDialable_7.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <string>

using namespace numbering;

namespace {

using Rule = Poco::AutoPtr<KesCountryRuleItem>;

/// A country rule whose long-distance prefix is `prefix` (the rule is prefix + "F").
Rule ruleWithLongDistPrefix(const std::string& number, const std::string& prefix) {
    return Rule(new KesCountryRuleItem(number, "00", "EF", prefix + "F", "", "Test"));
}

/// An installation of the default country with `areaCodes` as its own areas.
KesDialRulesItem installationIn(const std::string& areaCodes) {
    KesDialRulesItem rules;
    rules.setAreaCode(areaCodes);
    return rules;
}

struct LongDistCase {
    std::string areaNatPfx;
    std::string number;
    std::string expected;
};

std::string longDist(KesDialable& strategy, const LongDistCase& c, KesCountryRuleItem* rule,
                     KesDialRulesItem* rules) {
    std::string area = c.areaNatPfx;
    std::string number = c.number;
    return strategy.makeLongDistDialableNumber(area, number, rule, rules);
}

class CountryStrategies : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
};

} // namespace

// The standard world's "RU" row has the long-distance prefix "8".
TEST_F(CountryStrategies, RussiaAddsThePrefixOnlyToMakeElevenDigits) {
    const LongDistCase cases[] = {
        {"495", "1234567", "84951234567"},  // ten digits: prefixed
        {"495", "123456", "495123456"},     // nine digits: as it stands
        {"4951", "1234567", "49511234567"}, // already eleven: no prefix
        {"", "9161234567", "89161234567"},  // no area, a whole national number
        {"8495", "1234567", "84951234567"}, // carries its prefix: eleven already
        {"", "", ""},
    };
    KesDialable_7 russia;
    // The rule passed in plays no part: the prefix comes from the "RU" row.
    Rule other = ruleWithLongDistPrefix("7", "5");
    KesDialRulesItem rules;
    for (const LongDistCase& c : cases)
        EXPECT_EQ(longDist(russia, c, other.get(), &rules), c.expected) << c.areaNatPfx << "/" << c.number;
}

TEST_F(CountryStrategies, RussiaCountsTheLengthOfALongerPrefix) {
    testconfig::write("dialingrules.properties", "RU = 7:810:EF:810F::Russia:P\n");
    testconfig::reload();
    KesDialable_7 russia;
    KesDialRulesItem rules;
    EXPECT_EQ(longDist(russia, {"495", "12345", ""}, nullptr, &rules), "81049512345");
    EXPECT_EQ(longDist(russia, {"495", "1234567", ""}, nullptr, &rules), "4951234567");
}

TEST_F(CountryStrategies, RussiaWithoutItsRowDialsWithoutPrefix) {
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    KesDialable_7 russia;
    KesDialRulesItem rules;
    EXPECT_EQ(longDist(russia, {"495", "1234567", ""}, nullptr, &rules), "4951234567");
    EXPECT_EQ(longDist(russia, {"49", "512345678", ""}, nullptr, &rules), "49512345678");
}

TEST_F(CountryStrategies, RussiaTracesItsFieldsAndResult) {
    testhost::Tracing on;
    KesDialable_7 russia;
    KesDialRulesItem rules;
    longDist(russia, {"495", "1234567", ""}, nullptr, &rules);
    EXPECT_TRUE(testhost::logged(
        "7-RU makeLongDistDialableNumber() AreaNatPfx: '495' dest: 1234567 result: 84951234567"));
}

TEST_F(CountryStrategies, MexicoDialsMobilesLocallyOrFromAfar) {
    const LongDistCase cases[] = {
        {"155", "12345678", "0445512345678"}, // mobile in the own area
        {"133", "12345678", "0453312345678"}, // mobile elsewhere
        {"1", "12345678", "04512345678"},     // mobile marker alone: not the own area
        {"1555", "12345678", "04555512345678"},
        {"33", "12345678", "013312345678"}, // fixed line: long-distance prefix
        {"55", "12345678", "015512345678"}, // fixed line in the own area all the same
        {"", "12345678", "0112345678"},
    };
    KesDialable_52 mexico;
    Rule rule = ruleWithLongDistPrefix("52", "01");
    KesDialRulesItem rules = installationIn("55,33");
    for (const LongDistCase& c : cases)
        EXPECT_EQ(longDist(mexico, c, rule.get(), &rules), c.expected) << c.areaNatPfx << "/" << c.number;
}

TEST_F(CountryStrategies, MexicoComparesWithTheMainAreaCodeOnly) {
    KesDialable_52 mexico;
    Rule rule = ruleWithLongDistPrefix("52", "01");
    KesDialRulesItem noArea = installationIn("");
    EXPECT_EQ(longDist(mexico, {"1", "12345678", ""}, rule.get(), &noArea), "04412345678");
    EXPECT_EQ(longDist(mexico, {"155", "12345678", ""}, rule.get(), &noArea), "0455512345678");
    EXPECT_EQ(longDist(mexico, {"155", "12345678", ""}, rule.get(), nullptr), "0455512345678");
}

TEST_F(CountryStrategies, MexicoTracesItsFieldsAndResult) {
    testhost::Tracing on;
    KesDialable_52 mexico;
    Rule rule = ruleWithLongDistPrefix("52", "01");
    KesDialRulesItem rules = installationIn("55");
    longDist(mexico, {"155", "12345678", ""}, rule.get(), &rules);
    EXPECT_TRUE(testhost::logged(
        "52-MX makeLongDistDialableNumber() AreaNatPfx: '155' dest: 12345678 result: 0445512345678"));
}

TEST_F(CountryStrategies, AustraliaPutsALiteralZeroBeforeNationalNumbers) {
    const LongDistCase cases[] = {
        {"2", "98765432", "0298765432"},  {"02", "98765432", "0298765432"}, // already prefixed
        {"", "1300123456", "1300123456"},                                   // service numbers keep their form
        {"", "131234", "131234"},         {"", "412345678", "0412345678"},  {"", "", "0"},
    };
    KesDialable_61 australia;
    // The rule's own prefix is never consulted.
    Rule rule = ruleWithLongDistPrefix("61", "9");
    KesDialRulesItem rules;
    for (const LongDistCase& c : cases)
        EXPECT_EQ(longDist(australia, c, rule.get(), &rules), c.expected) << c.areaNatPfx << "/" << c.number;
}

TEST_F(CountryStrategies, AustraliaTracesItsFieldsAndResult) {
    testhost::Tracing on;
    KesDialable_61 australia;
    KesDialRulesItem rules;
    longDist(australia, {"2", "98765432", ""}, nullptr, &rules);
    EXPECT_TRUE(testhost::logged(
        "61-AU makeLongDistDialableNumber() AreaNatPfx: '2' dest: 98765432 result: 0298765432"));
}

// Outside their long-distance form the country strategies follow the generic rules.
TEST_F(CountryStrategies, OtherFormsFollowTheGenericRules) {
    Rule rule(new KesCountryRuleItem("61", "0011", "EF", "0F", "", "Australia"));
    KesDialable_61 australia;
    KesDialable_7 russia;
    KesDialable_52 mexico;
    for (KesDialable* strategy : {static_cast<KesDialable*>(&australia), static_cast<KesDialable*>(&russia),
                                  static_cast<KesDialable*>(&mexico)}) {
        std::string country = "33", area = "1", number = "40123456";
        EXPECT_EQ(strategy->makeInternationalDialableNumber(country, area, number, rule.get()),
                  "001133140123456");
        EXPECT_EQ(strategy->makeLocalDialableNumber(area, number, rule.get()), "40123456");
        EXPECT_EQ(strategy->extractOperatorPrefix("912345"), "");
    }
}
