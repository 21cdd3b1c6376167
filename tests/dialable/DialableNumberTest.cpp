#include "../rules/FacadeWorld.h"

#include <stdexcept>
#include <string>

using namespace numbering;

namespace {

class DialableNumber : public facadeworld::FacadeTest {};

// From Paris, France dials "00" abroad and "0" before an area code; its own areas take the local
// rule, which is empty.
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

} // namespace
