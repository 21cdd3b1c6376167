#include "Suite.h"

#include "numbering/KesDialable_54.h"
#include "numbering/KesDialable_57.h"
#include "numbering/KesDialable_7.h"

namespace {

using Rule = Poco::AutoPtr<KesCountryRuleItem>;

Rule ruleOf(const std::string& number, const std::string& prefix, const std::string& internatRule = "EF") {
    return Rule(new KesCountryRuleItem(number, "00", internatRule, prefix + "F", "", "Test"));
}

KesDialRulesItem installationIn(const std::string& areaCodes) {
    KesDialRulesItem rules;
    rules.setAreaCode(areaCodes);
    return rules;
}

std::string longDist(KesDialable& strategy, std::string area, std::string number, KesCountryRuleItem* rule,
                     KesDialRulesItem* rules) {
    return strategy.makeLongDistDialableNumber(area, number, rule, rules);
}

/// The standard world, the Argentine area codes 11 and 351 and the Colombian operators.
class CountryStrategies : public testconfig::WorldTest {
protected:
    CountryStrategies()
        : WorldTest(
              testconfig::STANDARD_DIALING_RULES,
              {{"tz310cnp_54.properties", "Translate=1\nAC_0000=11\nAC_0001=351\n"},
               {"tz310cnp_57.properties", "OP_DEFAULT=456\nOP_0000=456\nOP_0001=47 Comcel\nOP_0003=9\n"}}) {}
};

} // namespace

TEST_F(CountryStrategies, LongDistanceNumbers) {
    // From the manager: a country lent another strategy fails here.
    KesDialableManager* manager = KesDialableManager::getInstance();
    KesDialable &russia = *manager->getDialable("7"), &mexico = *manager->getDialable("52");
    KesDialable &argentina = *manager->getDialable("54"), &colombia = *manager->getDialable("57");
    KesDialable& australia = *manager->getDialable("61");
    EXPECT_EQ(manager->getDialable(""), nullptr) << "no strategy without a calling code";
    KesDialRulesItem plain, mexicoCity = installationIn("55,33"), noArea = installationIn("");
    KesDialRulesItem buenosAires = installationIn("11");
    // Russia, Argentina and Australia never consult the rule's prefix.
    Rule other = ruleOf("7", "5"), mexican = ruleOf("52", "01"), zero = ruleOf("57", "0");
    struct Case {
        KesDialable* strategy;
        KesCountryRuleItem* rule;
        KesDialRulesItem* rules;
        const char *area, *number, *dialled;
    } const cases[] = {
        // Russia adds its prefix only to make eleven digits.
        {&russia, other.get(), &plain, "495", "1234567", "84951234567"},
        {&russia, other.get(), &plain, "495", "123456", "495123456"},
        // Mexico dials mobiles of the main area locally, others from afar; fixed lines take the prefix.
        {&mexico, mexican.get(), &mexicoCity, "155", "12345678", "0445512345678"},
        {&mexico, mexican.get(), &mexicoCity, "133", "12345678", "0453312345678"},
        {&mexico, mexican.get(), &mexicoCity, "33", "12345678", "013312345678"},
        {&mexico, mexican.get(), &noArea, "1", "12345678", "04412345678"},
        {&mexico, mexican.get(), nullptr, "155", "12345678", "0455512345678"},
        // Australia puts a literal zero before national numbers.
        {&australia, other.get(), &plain, "2", "98765432", "0298765432"},
        {&australia, other.get(), &plain, "02", "98765432", "0298765432"},
        {&australia, other.get(), &plain, "", "1300123456", "1300123456"},
        {&australia, other.get(), &plain, "", "", "0"},
        // Colombia dials national numbers through the default operator, mobiles through "3".
        {&colombia, zero.get(), nullptr, "1", "2345678", "045612345678"},
        {&colombia, zero.get(), nullptr, "", "12345678", "045612345678"},
        {&colombia, zero.get(), nullptr, "300", "1234567", "033001234567"},
        // Argentina dials own-area mobiles with "15", other areas with their code.
        {&argentina, zero.get(), &buenosAires, "11", "1543215678", "1543215678"},
        {&argentina, zero.get(), &buenosAires, "", "43215678", "43215678"},
        {&argentina, zero.get(), &buenosAires, "351", "154123456", "0351154123456"},
        {&argentina, zero.get(), &noArea, "", "43215678", "043215678"}, // an empty area is never the own
        // Numbers that cannot be split stay as they are.
        {&argentina, zero.get(), &buenosAires, "9", "999999999", "9999999999"},
        {&argentina, zero.get(), nullptr, "11", "43215678", "1143215678"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(longDist(*c.strategy, c.area, c.number, c.rule, c.rules), c.dialled)
            << c.area << "/" << c.number;
    std::string area = "351", number = "4123456";
    EXPECT_EQ(dynamic_cast<KesDialable_54&>(argentina).makeLocalDialableNumber(area, number, zero.get(),
                                                                               &buenosAires),
              "03514123456");
    EXPECT_THROW(longDist(colombia, "", "", zero.get(), nullptr), std::out_of_range);
}

TEST_F(CountryStrategies, WithoutTheirCountryRowsRussiaAndArgentinaAddNothing) {
    KesDialable_7 russia;
    KesDialable_54 argentina;
    Rule zero = ruleOf("54", "0");
    KesDialRulesItem buenosAires = installationIn("11");
    testconfig::reloadWith("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    EXPECT_EQ(longDist(russia, "495", "1234567", zero.get(), &buenosAires), "4951234567");
    EXPECT_EQ(longDist(argentina, "11", "1543215678", zero.get(), &buenosAires), "111543215678");
}

TEST_F(CountryStrategies, ColombianOperatorsUpToTheFirstGap) {
    KesDialable_57 colombia;
    const char* const cases[][2] = {
        {"456", "456"}, {"47", "47"}, {"471234", "47"}, // only the leading digits of a value count
        {"4", ""},      {"9", ""},    {"", ""},         // OP_0003 lies behind the gap
    };
    for (const auto& c : cases)
        EXPECT_EQ(colombia.extractOperatorPrefix(c[0]), c[1]) << c[0];

    // Without its file the strategy keeps the default operator 9 and knows no prefix.
    testconfig::remove("tz310cnp_57.properties");
    KesDialable_57 withoutFile;
    EXPECT_EQ(withoutFile.extractOperatorPrefix("912345"), "");
    Rule rule = ruleOf("57", "0");
    EXPECT_EQ(longDist(withoutFile, "1", "2345678", rule.get(), nullptr), "0912345678");
}

// The generic strategy reads the letters of the international rule and drops the destination's
// national prefix; the Colombian one puts the subscriber number where the country code belongs.
TEST_F(CountryStrategies, InternationalNumbers) {
    testconfig::remove("tz310cnp_57.properties");
    KesDialable generic;
    KesDialable_57 colombia;
    const char* const cases[][6] = {
        // strategy, rule, country, area, number, expected
        // Letters other than E, F and I are ignored.
        {"", "EFG", "49", "89", "123456", "004989123456"},
        {"", "E", "49", "89", "123456", "0049123456"},
        {"", "F", "49", "89", "123456", "0089123456"},
        {"", "", "49", "89", "123456", "00123456"},
        // The destination's national prefix in place of an area code is dropped, on an exact match only.
        {"", "EF", "44", "0", "2071234567", "00442071234567"},
        {"", "EF", "44", "01", "234567", "004401234567"},
        // A destination the store does not know keeps its area field.
        {"", "EF", "999", "0", "1234", "0099901234"},
        {"57", "EF", "34", "91", "1234567", "0091234567911234567"},
        {"57", "EF", "33", "0", "1234567", "00912345671234567"},
        {"57", "E", "34", "91", "1234567", "00912345671234567"},
        {"57", "F", "34", "91", "1234567", "009911234567"},
    };
    for (const auto& c : cases) {
        Rule rule(new KesCountryRuleItem("33", "00", c[1], "0F", "", "Test"));
        std::string country = c[2], area = c[3], number = c[4];
        KesDialable& strategy = c[0][0] != '\0' ? colombia : generic;
        EXPECT_EQ(strategy.makeInternationalDialableNumber(country, area, number, rule.get()), c[5])
            << c[0] << " " << c[1] << " " << c[2] << "/" << c[3] << "/" << c[4];
    }
}

// The generic rules complete the prefix, never double it; "I" puts it without the area code.
TEST_F(CountryStrategies, GenericLongDistanceAndLocalRulesMergeThePrefix) {
    KesDialable strategy;
    const char* const cases[][4] = {
        {"0F", "4", "76112233", "0476112233"}, {"0F", "04", "76112233", "0476112233"},
        {"01F", "0234", "5", "012345"},        {"0I", "4", "76112233", "076112233"},
        {"", "4", "76112233", "76112233"},     {"F", "1", "234", "1234"}};
    KesDialRulesItem rules;
    for (const auto& c : cases) {
        Rule longDist(new KesCountryRuleItem("33", "00", "EF", c[0], "", "Test"));
        Rule local(new KesCountryRuleItem("33", "00", "EF", "", c[0], "Test"));
        std::string area = c[1], number = c[2];
        EXPECT_EQ(strategy.makeLongDistDialableNumber(area, number, longDist.get(), &rules), c[3])
            << c[0] << c[1];
        EXPECT_EQ(strategy.makeLocalDialableNumber(area, number, local.get()), c[3]) << c[0] << c[1];
    }
}

// A reload reads the operators at once: a strategy made afterwards knows them as they were.
TEST_F(CountryStrategies, OperatorsAreReadAtTheReload) {
    KesNumberingRules::reload();
    testconfig::remove("tz310cnp_57.properties");
    EXPECT_EQ(KesDialable_57().extractOperatorPrefix("4561234567"), "456");
}
