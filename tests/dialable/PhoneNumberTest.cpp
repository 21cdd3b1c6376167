#include "../rules/FacadeWorld.h"

#include <string>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::stockholm;

namespace {

class PhoneNumber : public FacadeTest {};

// Stockholm: area code 8, outside line "0" (or none, or "9"), local numbers shorter than four digits.
TEST_F(PhoneNumber, DialledFormsOfTypedNumbers) {
    KesDialRulesItem local = stockholm(4), noPrefix("SE", "", 4, "8", 0, ""), nine("SE", "9", 5, "8", 0, "");
    KesDialRulesItem exception112 = stockholm(4, "112"), exception011 = stockholm(4, "011");
    KesDialRulesItem paris = facadeworld::paris();
    struct Case {
        KesDialRulesItem* rules;
        bool addPrefixOnly; // addExternalPrefix rather than makePhoneNumber
        std::string typed, dialled;
    } const cases[] = {
        {&local, false, "+46 (8) 123 456 78", "012345678"},
        {&local, false, "  + 46 8 12345678 ", "012345678"},
        {&local, false, "+46 31 123 456", "0031123456"},
        {&local, false, "+39 06 1234567", "00039061234567"},
        {&local, false, "08 123 456 78", "00812345678"},
        {&local, false, "123", "123"},   // an extension: no outside line
        {&local, false, "*12#", "*12#"}, // service codes are never converted nor prefixed
        {&local, false, "0123x", ""},
        {&local, false, "+39 " + std::string(30, '1'), ""},
        // Without an outside-line prefix only canonical input is converted.
        {&noPrefix, false, "08-123 456 78", "0812345678"},
        {&noPrefix, false, "+46 (8) 12345678", "12345678"},
        {&noPrefix, false, "08 12x", ""},
        {&noPrefix, true, " 08-123 456 78", "0812345678"},
        {&noPrefix, true, "+46 (31) 123456", "031123456"},
        // A number dialled with the outside-line prefix keeps it where the rules would not add it,
        // and is not given a second one; canonical input counts as dialled with it.
        {&exception112, false, "112", "112"},
        {&exception112, false, "+46 (8) 112", "0112"},
        {&exception011, false, "0112", "0112"},
        {&exception011, true, "0112", "0112"},
        {&exception011, true, "112", "112"},
        // addExternalPrefix checks only what is not canonical, and no service characters.
        {&nine, true, "+46 8 12345678", "912345678"},
        {&nine, true, "12345", "912345"},
        {&nine, true, "1234", "1234"},
        {&nine, true, "9123", "9123"},
        {&nine, true, "*12#0", "9*12#0"},
        {&nine, true, "08 12x", ""},
        {&nine, true, " +46 8 12345678", ""}, // not trimmed: a blank before "+" makes no phone number
        // The other way of the worked example: a French installation dials abroad, to a country
        // without a plan and to one whose plan writes the national form back canonically.
        {&paris, false, "+34 (91) 123456", "0003491123456"},
        {&paris, false, "+49 (89) 123456", "0004989123456"},
    };
    for (const Case& c : cases) {
        const std::string dialled = c.addPrefixOnly ? facade->addExternalPrefix(c.rules, c.typed)
                                                    : facade->makePhoneNumber(c.rules, c.typed);
        EXPECT_EQ(dialled, c.dialled) << "typed '" << c.typed << "'";
    }
}

TEST_F(PhoneNumber, ServiceCharactersAndFailures) {
    KesDialRulesItem rules = stockholm(4);
    for (auto operation : {&KesNumberingRules::makePhoneNumber, &KesNumberingRules::addExternalPrefix})
        EXPECT_EQ((facade->*operation)(&rules, " 0***1"), " 0***1");
    EXPECT_EQ(facade->makePhoneNumber(&rules, "   "), ""); // only white space
    EXPECT_EQ(testhost::countLogged("KesNumberingRules::makePhoneNumber exception: "), 1);
    KesDialRulesItem noPrefix("SE", "", 4, "8", 0, "");
    EXPECT_EQ(facade->addExternalPrefix(&noPrefix, " \t "), "");
    EXPECT_EQ(testhost::countLogged("KesNumberingRules::addExternalPrefix exception: "), 1);
}

} // namespace
