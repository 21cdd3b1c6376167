// Canonical numbers into the digits an installation dials, with the outside-line prefix where needed.
#include "../rules/FacadeWorld.h"

using DialableNumber = facadeworld::FacadeTest;
using PhoneNumber = facadeworld::FacadeTest;
using facadeworld::stockholm;

// From Paris, "00" abroad, "0" before an area code, the empty local rule in its own areas.
TEST_F(DialableNumber, ChoosesInternationalLongDistanceOrLocal) {
    KesDialRulesItem paris = facadeworld::paris(), otherAreas("FR", "0", 0, "2, 3", 0, "");
    const std::string twentyNine = "+33 (4) " + std::string(21, '7');
    struct Case {
        KesDialRulesItem* rules;
        std::string canonical, dialled;
    } const cases[] = {
        {&paris, "+33 (1) 40 12 34 56", "40123456"},
        {&paris, "+33 (4) 76 11 22 33", "0476112233"},
        {&paris, "+49 (89) 123456", "004989123456"},
        {&paris, "+48 (0) 22 123 45 67", "0048221234567"}, // the national prefix is not dialled
        {&paris, "+33 40123456", "040123456"},             // no parentheses: no area code
        {&paris, "+33 (1 40123456", "0140123456"},         // "(" alone: every digit is subscriber
        {&paris, " 33 (1) 40123456", "40123456"},          // a leading blank reads as a "+"
        {&otherAreas, "+33 (1) 40123456", "0140123456"},
        {&otherAreas, "+33 (3) 40123456", "40123456"},
        {&paris, "0140123456", "0140123456"}, // not canonical: passes through
        {&paris, "*12", "*12"},
        // Thirty characters or no subscriber number give nothing.
        {&paris, twentyNine, "04" + std::string(21, '7')},
        {&paris, twentyNine + "9", ""},
        {&paris, "+33 ()", ""},
        {&paris, "+33 (1)", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->makeDialableNumber(c.rules, c.canonical), c.dialled) << c.canonical;
    EXPECT_THROW(facade->makeDialableNumber(&paris, ""), std::out_of_range);

    testhost::Tracing tracing;
    facade->makeDialableNumber(&paris, "+49 (89) 123456");
    EXPECT_TRUE(testhost::logged("makeDialableNumber('FR', '1', '+49 (89) 123456')"));
    EXPECT_TRUE(testhost::logged("Country : '49', Area/Nat Pfx : '89', Number : '123456'"));
    EXPECT_TRUE(testhost::logged("KesNumberingRules : makePhoneNumber International"));
}

// An installation country the rules do not know: nothing can be dialled differently.
TEST_F(DialableNumber, UnknownInstallationCountryDialsTheCanonicalForm) {
    KesDialRulesItem unknown;
    unknown.setAreaCode("1");
    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Sweden:P\n");
    testconfig::reload();
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade->makeDialableNumber(&unknown, "+33 (1) 40123456"), "+33 (1) 40123456");
}

TEST_F(DialableNumber, PrefixNeededUnlessShortOrException) {
    KesDialRulesItem rules("FR", "0", 4, "1", 0, "112");
    const std::pair<const char*, bool> cases[] = {
        {"123", false},  // shorter than a local number: an extension
        {"1234", true},  // as long as a local number
        {"1125", false}, // an exception
        {"0112", true},  // exceptions are told by their leading digits
        {"040123456", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->isPrefixNeeded(&rules, c.first), c.second) << c.first;
    EXPECT_FALSE(facade->isPrefixNeeded(nullptr, "040123456"));
}

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
        // A number dialled with the outside-line prefix keeps it, and is not given a second one.
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
        {&paris, false, "+34 (91) 123456", "0003491123456"}, // abroad, to a country without a plan
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
