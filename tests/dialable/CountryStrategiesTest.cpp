#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable_52.h"
#include "numbering/KesDialable_54.h"
#include "numbering/KesDialable_57.h"
#include "numbering/KesDialable_61.h"
#include "numbering/KesDialable_7.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace numbering;

namespace {

using Rule = Poco::AutoPtr<KesCountryRuleItem>;

/// A country rule with the international prefix "00" and the long-distance prefix `prefix`.
Rule ruleOf(const std::string& number, const std::string& prefix, const std::string& internatRule = "EF") {
    return Rule(new KesCountryRuleItem(number, "00", internatRule, prefix + "F", "", "Test"));
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

void expectLongDist(KesDialable& strategy, const std::vector<LongDistCase>& cases, KesCountryRuleItem* rule,
                    KesDialRulesItem* rules) {
    for (const LongDistCase& c : cases)
        EXPECT_EQ(longDist(strategy, c, rule, rules), c.expected) << c.areaNatPfx << "/" << c.number;
}

/// The standard world: "RU" has the long-distance prefix "8", "AR" and "CO" have "0".
class CountryStrategies : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
};

} // namespace

TEST_F(CountryStrategies, RussiaAddsThePrefixOnlyToMakeElevenDigits) {
    KesDialable_7 russia;
    // The rule passed in plays no part: the prefix comes from the "RU" row.
    Rule other = ruleOf("7", "5");
    KesDialRulesItem rules;
    expectLongDist(russia,
                   {
                       {"495", "1234567", "84951234567"},
                       {"495", "123456", "495123456"},
                       {"4951", "1234567", "49511234567"},
                       {"", "9161234567", "89161234567"},
                       {"", "", ""},
                   },
                   other.get(), &rules);

    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    expectLongDist(russia, {{"495", "1234567", "4951234567"}}, other.get(), &rules);
}

TEST_F(CountryStrategies, MexicoDialsMobilesLocallyOrFromAfar) {
    KesDialable_52 mexico;
    Rule rule = ruleOf("52", "01");
    KesDialRulesItem rules = installationIn("55,33");
    expectLongDist(mexico,
                   {
                       {"155", "12345678", "0445512345678"}, // mobile of the main area
                       {"133", "12345678", "0453312345678"}, // only the main area counts
                       {"1", "12345678", "04512345678"},
                       {"33", "12345678", "013312345678"}, // fixed lines take the prefix
                       {"55", "12345678", "015512345678"},
                   },
                   rule.get(), &rules);
    KesDialRulesItem noArea = installationIn("");
    expectLongDist(mexico, {{"1", "12345678", "04412345678"}}, rule.get(), &noArea);
    expectLongDist(mexico, {{"155", "12345678", "0455512345678"}}, rule.get(), nullptr);
}

TEST_F(CountryStrategies, AustraliaPutsALiteralZeroBeforeNationalNumbers) {
    KesDialable_61 australia;
    Rule rule = ruleOf("61", "9"); // the rule's prefix is never consulted
    KesDialRulesItem rules;
    expectLongDist(australia,
                   {
                       {"2", "98765432", "0298765432"},
                       {"02", "98765432", "0298765432"},
                       {"", "1300123456", "1300123456"},
                       {"", "412345678", "0412345678"},
                       {"", "", "0"},
                   },
                   rule.get(), &rules);
}

TEST_F(CountryStrategies, LongDistanceFormsTraceFieldsAndResult) {
    KesDialable_7 russia;
    KesDialable_52 mexico;
    KesDialable_61 australia;
    Rule rule = ruleOf("52", "01");
    KesDialRulesItem rules = installationIn("55");
    testhost::Tracing on;
    longDist(russia, {"495", "1234567", ""}, rule.get(), &rules);
    longDist(mexico, {"155", "12345678", ""}, rule.get(), &rules);
    longDist(australia, {"2", "98765432", ""}, rule.get(), &rules);
    EXPECT_TRUE(testhost::logged(
        "7-RU makeLongDistDialableNumber() AreaNatPfx: '495' dest: 1234567 result: 84951234567"));
    EXPECT_TRUE(testhost::logged(
        "52-MX makeLongDistDialableNumber() AreaNatPfx: '155' dest: 12345678 result: 0445512345678"));
    EXPECT_TRUE(testhost::logged(
        "61-AU makeLongDistDialableNumber() AreaNatPfx: '2' dest: 98765432 result: 0298765432"));
}

TEST_F(CountryStrategies, ColombiaLoadsOperatorsUpToTheFirstGap) {
    testconfig::write("tz310cnp_57.properties", "OP_0000 = 5\nOP_0001 = 47 Comcel\nOP_0003 = 9\n");
    KesDialable_57 colombia;
    const char* const cases[][2] = {
        {"5", "5"}, {"512", "5"}, {"47", "47"}, {"471234", "47"}, // only leading digits of a value count
        {"4", ""},  {"9", ""},    {"", ""},                       // OP_0003 lies behind the gap
    };
    for (const auto& c : cases)
        EXPECT_EQ(colombia.extractOperatorPrefix(c[0]), c[1]) << c[0];
}

TEST_F(CountryStrategies, ColombiaTracesWhatItFinds) {
    testconfig::write("tz310cnp_57.properties", "OP_0000=5\n");
    KesDialable_57 colombia;
    testhost::Tracing on;
    colombia.extractOperatorPrefix("5");
    colombia.extractOperatorPrefix("512");
    colombia.extractOperatorPrefix("4");
    ASSERT_EQ(testhost::lines().size(), 2u);
    EXPECT_EQ(testhost::lines()[0],
              "DEBUG N9numbering14KesDialable_57E - '5' is an Colombian operator prefix");
    EXPECT_EQ(testhost::lines()[1], "DEBUG N9numbering14KesDialable_57E - '512' isn't an Colombian operator "
                                    "prefix, but begins with '5' which is an Colombian operator prefix");
}

TEST_F(CountryStrategies, ColombiaWithoutItsFileKeepsTheDefaultOperator) {
    testhost::Tracing on;
    KesDialable_57 colombia;
    EXPECT_EQ(testhost::countLogged("KesDialable_57 : "), 1);
    EXPECT_EQ(colombia.extractOperatorPrefix("912345"), "");
    Rule rule = ruleOf("57", "0");
    expectLongDist(colombia, {{"1", "2345678", "0912345678"}}, rule.get(), nullptr);
}

TEST_F(CountryStrategies, ColombiaDialsNationalNumbersThroughTheOperator) {
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=456\nOP_0000=456\n");
    KesDialable_57 colombia;
    Rule rule = ruleOf("57", "0");
    expectLongDist(colombia,
                   {
                       {"1", "2345678", "045612345678"},
                       {"", "12345678", "045612345678"},
                       {"300", "1234567", "033001234567"}, // mobiles go through the mobile prefix
                       {"", "3001234567", "033001234567"},
                   },
                   rule.get(), nullptr);
    EXPECT_THROW(longDist(colombia, {"", "", ""}, rule.get(), nullptr), std::out_of_range);
}

// The subscriber number stands where the country code belongs: kept as installations dial it.
TEST_F(CountryStrategies, ColombiaInternationalFormRepeatsTheNumber) {
    KesDialable_57 colombia;
    const char* const cases[][4] = {
        // rule, country, area, expected
        {"EF", "34", "91", "0091234567911234567"},
        {"EF", "33", "0", "00912345671234567"}, // the destination's national prefix is dropped
        {"EF", "33", "01", "0091234567011234567"},
        {"E", "34", "91", "00912345671234567"},
        {"F", "34", "91", "009911234567"},
    };
    for (const auto& c : cases) {
        Rule rule = ruleOf("57", "0", c[0]);
        std::string country = c[1], area = c[2], number = "1234567";
        EXPECT_EQ(colombia.makeInternationalDialableNumber(country, area, number, rule.get()), c[3])
            << c[0] << " " << c[1] << " " << c[2];
    }
}

namespace {

/// Argentina with the area codes 11 and 351 and the national prefix "0".
class ArgentineStrategy : public CountryStrategies {
protected:
    void SetUp() override {
        CountryStrategies::SetUp();
        testconfig::write("tz310cnp_54.properties", "Translate=1\nAC_0000=11\nAC_0001=351\n");
    }

    KesDialable_54 argentina;
    Rule rule = ruleOf("54", "0");
    KesDialRulesItem rules = installationIn("11");
};

} // namespace

TEST_F(ArgentineStrategy, DialsMobilesWithFifteenAndOtherAreasWithTheirCode) {
    const LongDistCase cases[] = {
        {"11", "1543215678", "1543215678"},                                  // own-area mobile: "15" + number
        {"11", "43215678", "43215678"},        {"", "43215678", "43215678"}, // local length: the own area
        {"9", "1143215678", "1543215678"},                                   // international mobile marker
        {"351", "154123456", "0351154123456"},                               // other area, mobile
        {"351", "4123456", "03514123456"},
    };
    for (const LongDistCase& c : cases) {
        EXPECT_EQ(longDist(argentina, c, rule.get(), &rules), c.expected) << c.areaNatPfx << "/" << c.number;
        std::string area = c.areaNatPfx, number = c.number;
        EXPECT_EQ(argentina.makeLocalDialableNumber(area, number, rule.get(), &rules), c.expected);
    }
    KesDialRulesItem noArea = installationIn(""); // an empty area is never the own one
    expectLongDist(argentina, {{"", "43215678", "043215678"}, {"", "1543215678", "01543215678"}}, rule.get(),
                   &noArea);
}

TEST_F(ArgentineStrategy, NumbersThatCannotBeSplitStayAsTheyAre) {
    testhost::Tracing on;
    expectLongDist(argentina,
                   {{"9", "999999999", "9999999999"}, {"11", "12345678901234", "1112345678901234"}},
                   rule.get(), &rules);
    expectLongDist(argentina, {{"11", "43215678", "1143215678"}}, rule.get(), nullptr);
    EXPECT_EQ(testhost::countLogged(
                  "makeLocalOrLongDistDialableNumber(Argentina): not possible to strip the number"),
              3);

    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n"); // no Argentine plan
    testconfig::reload();
    expectLongDist(argentina, {{"11", "1543215678", "111543215678"}}, rule.get(), &rules);
}

// Numbers inside the installation's own areas reach the generic three-argument form.
TEST_F(ArgentineStrategy, TheThreeArgumentLocalFormStaysGeneric) {
    std::string area = "351", number = "154123456";
    EXPECT_EQ(argentina.makeLocalDialableNumber(area, number, rule.get()), "154123456");
    Rule withLocalRule(new KesCountryRuleItem("54", "00", "EF", "0F", "F", "Argentina"));
    EXPECT_EQ(argentina.makeLocalDialableNumber(area, number, withLocalRule.get()), "351154123456");
}
