#include "../rules/FacadeWorld.h"

#include <stdexcept>
#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;

namespace {

struct Case {
    std::string canonical;
    std::string expected;
};

// From Paris, France dials "00" abroad and "0" before an area code.
class DialableNumber : public FacadeTest {
protected:
    void expectDialable(KesDialRulesItem& rules, const std::vector<Case>& cases) {
        for (const Case& c : cases)
            EXPECT_EQ(facade->makeDialableNumber(&rules, c.canonical), c.expected) << c.canonical;
    }
};

TEST_F(DialableNumber, ChoosesInternationalLongDistanceOrLocal) {
    KesDialRulesItem paris = facadeworld::paris();
    expectDialable(paris, {
                              // One of the installation's own areas: the local rule, which is empty.
                              {"+33 (1) 40 12 34 56", "40123456"},
                              {"+33 (4) 76 11 22 33", "0476112233"},
                              {"+49 (89) 123456", "004989123456"},
                              // The destination's national prefix in the parentheses is not dialled.
                              {"+48 (0) 22 123 45 67", "0048221234567"},
                              // No parentheses: no area code.
                              {"+33 40123456", "040123456"},
                              // An opening parenthesis alone: every digit goes to the subscriber number.
                              {"+33 (1 40123456", "0140123456"},
                              // A leading blank reads as a "+".
                              {" 33 (1) 40123456", "40123456"},
                          });
    KesDialRulesItem otherArea("FR", "0", 0, "2, 3", 0, "");
    expectDialable(otherArea, {{"+33 (1) 40123456", "0140123456"}, {"+33 (3) 40123456", "40123456"}});
}

TEST_F(DialableNumber, NotCanonicalPassesThrough) {
    KesDialRulesItem paris = facadeworld::paris();
    expectDialable(paris, {{"0140123456", "0140123456"}, {"*12", "*12"}});
    EXPECT_THROW(facade->makeDialableNumber(&paris, ""), std::out_of_range);
    // An installation country the rules do not know: nothing can be dialled differently.
    KesDialRulesItem unknown;
    unknown.setAreaCode("1");
    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Sweden:P\n");
    testconfig::reload();
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade->makeDialableNumber(&unknown, "+33 (1) 40123456"), "+33 (1) 40123456");
}

TEST_F(DialableNumber, ThirtyCharactersOrNoSubscriberGiveNothing) {
    KesDialRulesItem paris = facadeworld::paris();
    const std::string twentyNine = "+33 (4) " + std::string(21, '7');
    expectDialable(paris, {
                              {twentyNine, "04" + std::string(21, '7')},
                              {twentyNine + "9", ""},
                              {"+33 (4) " + std::string(200, '5'), ""},
                              {"+33 ()", ""},
                              {"+33 (1)", ""},
                          });
}

TEST_F(DialableNumber, TracesFieldsUnderTheInstallationsArea) {
    KesDialRulesItem paris = facadeworld::paris();
    testhost::Tracing tracing;
    facade->makeDialableNumber(&paris, "+49 (89) 123456");
    EXPECT_TRUE(testhost::logged("makeDialableNumber('FR', '1', '+49 (89) 123456')"));
    EXPECT_TRUE(testhost::logged("Country : '49', Area/Nat Pfx : '89', Number : '123456'"));
    EXPECT_TRUE(testhost::logged("KesNumberingRules : makePhoneNumber International"));
}

TEST_F(DialableNumber, PrefixNeededUnlessShortOrException) {
    KesDialRulesItem rules("FR", "0", 4, "1", 0, "112");
    struct PrefixCase {
        std::string number;
        bool needed;
    };
    const std::vector<PrefixCase> cases = {
        {"123", false},  // shorter than a local number: an extension
        {"1234", true},  // as long as a local number
        {"1125", false}, // an exception
        {"0112", true},  // exceptions are told by their leading digits
        {"040123456", true},
    };
    for (const PrefixCase& c : cases)
        EXPECT_EQ(facade->isPrefixNeeded(&rules, c.number), c.needed) << c.number;
    EXPECT_FALSE(facade->isPrefixNeeded(nullptr, "040123456"));
}

} // namespace
