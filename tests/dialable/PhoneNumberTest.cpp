#include "../rules/FacadeWorld.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::invalidArgumentText;
using facadeworld::stockholm;

namespace {

struct Case {
    std::string typed;
    std::string expected;
};

// Stockholm: area code 8, outside line "0", local numbers shorter than four digits.
class PhoneNumber : public FacadeTest {
protected:
    void expectPhone(KesDialRulesItem& rules, const std::vector<Case>& cases) {
        for (const Case& c : cases)
            EXPECT_EQ(facade->makePhoneNumber(&rules, c.typed), c.expected) << "typed '" << c.typed << "'";
    }
    void expectWithPrefix(KesDialRulesItem& rules, const std::vector<Case>& cases) {
        for (const Case& c : cases)
            EXPECT_EQ(facade->addExternalPrefix(&rules, c.typed), c.expected) << "typed '" << c.typed << "'";
    }
};

TEST_F(PhoneNumber, UnusableArgumentsThrowNullRulesFirst) {
    KesDialRulesItem rules = stockholm();
    for (auto operation : {&KesNumberingRules::makePhoneNumber, &KesNumberingRules::addExternalPrefix}) {
        EXPECT_EQ(invalidArgumentText([&] { (facade->*operation)(nullptr, ""); }),
                  "'myKesDialRulesItem' parameter can not be null");
        EXPECT_EQ(invalidArgumentText([&] { (facade->*operation)(&rules, ""); }),
                  "'strPhoneNumber' parameter can not be null");
        EXPECT_EQ((facade->*operation)(&rules, " 0***1"), " 0***1");
    }
}

TEST_F(PhoneNumber, DialsAnyAcceptableNumberWithTheOutsideLine) {
    KesDialRulesItem rules = stockholm(4);
    expectPhone(rules, {
                           {"+46 (8) 123 456 78", "012345678"},
                           {"  + 46 8 12345678 ", "012345678"},
                           {"+46 31 123 456", "0031123456"},
                           {"+39 06 1234567", "00039061234567"},
                           {"08 123 456 78", "00812345678"},
                           {"00 39 06 1234", "00039061234"},
                           // An extension: no outside line.
                           {"123", "123"},
                           // Service codes are never converted nor prefixed.
                           {"*12#", "*12#"},
                           {"0123x", ""},
                           {"+39 " + std::string(30, '1'), ""},
                       });
}

TEST_F(PhoneNumber, WithoutOutsideLinePrefixOnlyCanonicalInputIsConverted) {
    KesDialRulesItem rules("SE", "", 4, "8", 0, "");
    expectPhone(rules, {{"08-123 456 78", "0812345678"}, {"+46 (8) 12345678", "12345678"}, {"08 12x", ""}});
    expectWithPrefix(rules, {{" 08-123 456 78", "0812345678"}, {"+46 (31) 123456", "031123456"}});
}

// A number the user dialled with the outside-line prefix keeps it where the rules would not add
// it, and is not given a second one.
TEST_F(PhoneNumber, DialledPrefixIsNeitherLostNorDoubled) {
    KesDialRulesItem rules = stockholm(4, "112");
    expectPhone(rules, {
                           {"112", "112"},
                           // Canonical input counts as dialled with the prefix: added again.
                           {"+46 (8) 112", "0112"},
                       });
    KesDialRulesItem exceptions = stockholm(4, "011");
    // The exception dialled with the prefix: the dialable number already begins with it.
    expectPhone(exceptions, {{"0112", "0112"}});
    expectWithPrefix(exceptions, {{"0112", "0112"}, {"112", "112"}});
}

TEST_F(PhoneNumber, AddExternalPrefixOnlyChecksWhatIsNotCanonical) {
    KesDialRulesItem rules("SE", "9", 5, "8", 0, "");
    expectWithPrefix(rules, {
                                {"+46 8 12345678", "912345678"},
                                {"12345", "912345"},
                                // Short: no prefix unless it was dialled.
                                {"1234", "1234"},
                                {"9123", "9123"},
                                // No service-character test: a code is prefixed like a number.
                                {"*12#0", "9*12#0"},
                                {"08 12x", ""},
                            });
    // The number as given is not trimmed, so a blank before the "+" makes it no phone number.
    expectWithPrefix(rules, {{" +46 8 12345678", ""}});
}

TEST_F(PhoneNumber, FailureIsLoggedWithTheWorkingNumber) {
    KesDialRulesItem rules("SE", "", 4, "8", 0, "");
    KesDialRulesItem withPrefix = stockholm(4);
    EXPECT_EQ(facade->makePhoneNumber(&withPrefix, "   "), "");
    // Only white space: the error of the character access, and the number as trimmed.
    const std::string line = testhost::lines().back();
    const std::string head =
        "ERROR N9numbering17KesNumberingRulesE - KesNumberingRules::makePhoneNumber exception: ";
    const std::string tail = std::string(" - PhoneNumber: ''\n  DialRules: ") + withPrefix.ToString().c_str();
    EXPECT_EQ(line.substr(0, head.size()), head);
    ASSERT_GT(line.size(), head.size() + tail.size());
    EXPECT_EQ(line.substr(line.size() - tail.size()), tail);
    EXPECT_EQ(facade->addExternalPrefix(&rules, " \t "), "");
    EXPECT_EQ(testhost::countLogged("KesNumberingRules::addExternalPrefix exception: "), 1);
}

// The other way of the worked example: a French installation dials a German number.
TEST_F(PhoneNumber, FrenchInstallationDialsAbroad) {
    KesDialRulesItem paris = facadeworld::paris();
    // Spain has no plan: the generic rules keep the number canonical.
    EXPECT_EQ(facade->makePhoneNumber(&paris, "+34 (91) 123456"), "0003491123456");
    // Germany's plan writes the national form back canonically.
    EXPECT_EQ(facade->makePhoneNumber(&paris, "+49 (89) 123456"), "0004989123456");
}

} // namespace
