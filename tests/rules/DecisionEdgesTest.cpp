// The edges of two decisions the conversions share: where the outside-line prefix starts to be
// needed, and what a conversion does with an error that is not the one it expects.

#include "FacadeWorld.h"

#include <new>
#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::stockholm;
using facadeworld::withDialRules;

namespace {

using DecisionEdges = FacadeTest;

TEST_F(DecisionEdges, OutsideLinePrefixStartsAtTheLocalNumberLength) {
    // A Stockholm national number of seven characters, around local number lengths of seven.
    struct Case {
        int localNbLength;
        bool prefixNeeded;
        std::string canonical; // a number that needs no outside line is not read as national
    };
    const std::vector<Case> cases = {
        {6, true, "+46 (0) 812345"},
        {7, true, "+46 (0) 812345"},
        {8, false, "0812345"},
    };
    for (const Case& c : cases) {
        KesDialRulesItem rules = stockholm(c.localNbLength);
        EXPECT_EQ(facade->isPrefixNeeded(&rules, "0812345"), c.prefixNeeded) << c.localNbLength;
        EXPECT_EQ(facade->makeCanonicalNumber(&rules, "0812345", ""), c.canonical) << c.localNbLength;
    }
}

/// Stockholm rules whose look-ups fail with `Error`, which no conversion expects.
template <class Error> class FailingRules : public KesDialRulesItem {
public:
    FailingRules() : KesDialRulesItem("SE", "0", 0, "8", 0, "") {}
    int getLocalNbLength() override { throw Error(); }
    std::string getExtPrefix() override { throw Error(); }
};

struct NotAStandardError {};

TEST_F(DecisionEdges, AnyOtherErrorGivesAnEmptyResultAndOneErrorLine) {
    FailingRules<std::bad_alloc> outOfMemory;
    FailingRules<NotAStandardError> unknown;
    struct Case {
        KesDialRulesItem* rules;
        bool phoneNumber; // makePhoneNumber, else makeCanonicalNumber
        std::string expectedHead;
    };
    const std::vector<Case> cases = {
        {&outOfMemory, false,
         "KesNumberingRules::makeCanonicalNumber exception: std::bad_alloc - PhoneNumber: '0812345', "
         "Pattern: 'P'"},
        {&unknown, false,
         "KesNumberingRules::makeCanonicalNumber exception: ... - PhoneNumber: '0812345', Pattern: 'P'"},
        {&outOfMemory, true,
         "KesNumberingRules::makePhoneNumber exception: std::bad_alloc - PhoneNumber: '0812345'"},
        {&unknown, true, "KesNumberingRules::makePhoneNumber exception: ... - PhoneNumber: '0812345'"},
    };
    for (const Case& c : cases) {
        testhost::clear();
        const std::string result = c.phoneNumber ? facade->makePhoneNumber(c.rules, " 0812345 ")
                                                 : facade->makeCanonicalNumber(c.rules, " 0812345 ", "P");
        EXPECT_EQ(result, "") << c.expectedHead;
        EXPECT_EQ(testhost::lines(), std::vector<std::string>{withDialRules(c.expectedHead, *c.rules)});
    }
}

} // namespace
