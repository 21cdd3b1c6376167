#include "TestConfig.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace numbering;

namespace {

using Rule = Poco::AutoPtr<KesCountryRuleItem>;

Rule ruleOf(const std::string& internatRule, const std::string& longDistRule, const std::string& localRule) {
    return Rule(new KesCountryRuleItem("33", "00", internatRule, longDistRule, localRule, "Test"));
}

// The destination's national prefix is looked up in the store: the United Kingdom writes "0".
class GenericDialable : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::clearAll();
        testconfig::write("dialingrules.properties", "GB = 44:00:EF:0F::United Kingdom:P\n"
                                                     "DE = 49:00:EF:0F::Germany:P\n");
        testconfig::reload();
    }
    void TearDown() override { testconfig::reload(); }

    KesDialable strategy;
};

TEST_F(GenericDialable, InternationalRuleLetters) {
    struct Case {
        std::string rule, country, area, number, expected;
    };
    const std::vector<Case> cases = {
        // Letters other than E, F and I are ignored.
        {"EFG", "49", "89", "123456", "004989123456"},
        {"E", "49", "89", "123456", "0049123456"},
        {"F", "49", "89", "123456", "0089123456"},
        {"", "49", "89", "123456", "00123456"},
        // The destination's national prefix in place of an area code is dropped, on an exact match only.
        {"EF", "44", "0", "2071234567", "00442071234567"},
        {"EF", "44", "01", "234567", "004401234567"},
        // A destination the store does not know keeps its area field.
        {"EF", "999", "0", "1234", "0099901234"},
    };
    for (const Case& c : cases) {
        Rule rule = ruleOf(c.rule, "0F", "");
        std::string country = c.country, area = c.area, number = c.number;
        EXPECT_EQ(strategy.makeInternationalDialableNumber(country, area, number, rule.get()), c.expected)
            << c.rule << " " << c.country << "/" << c.area << "/" << c.number;
    }
}

TEST_F(GenericDialable, LongDistanceAndLocalRulesMergeThePrefix) {
    struct Case {
        std::string rule, area, number, expected;
    };
    const std::vector<Case> cases = {
        {"0F", "4", "76112233", "0476112233"},
        // The prefix is completed, never doubled.
        {"0F", "04", "76112233", "0476112233"},
        {"01F", "0234", "5", "012345"},
        // "I": the prefix without the area code.
        {"0I", "4", "76112233", "076112233"},
        {"", "4", "76112233", "76112233"},
        {"F", "1", "234", "1234"},
    };
    KesDialRulesItem rules;
    for (const Case& c : cases) {
        Rule longDist = ruleOf("EF", c.rule, "");
        Rule local = ruleOf("EF", "", c.rule);
        std::string area = c.area, number = c.number;
        EXPECT_EQ(strategy.makeLongDistDialableNumber(area, number, longDist.get(), &rules), c.expected)
            << "long distance " << c.rule << " " << c.area << "/" << c.number;
        EXPECT_EQ(strategy.makeLocalDialableNumber(area, number, local.get()), c.expected)
            << "local " << c.rule << " " << c.area << "/" << c.number;
    }
}

} // namespace
