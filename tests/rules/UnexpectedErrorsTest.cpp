// What a conversion does with an error that is not the one it expects. (Where the outside-line
// prefix starts to be needed is pinned by the dialable number tests: one decision serves both.)

#include "FacadeWorld.h"

#include <new>
#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::withDialRules;

namespace {

using UnexpectedErrors = FacadeTest;

/// Stockholm rules whose look-ups fail with `Error`, which no conversion expects.
template <class Error> class FailingRules : public KesDialRulesItem {
public:
    FailingRules() : KesDialRulesItem("SE", "0", 0, "8", 0, "") {}
    int getLocalNbLength() override { throw Error(); }
    std::string getExtPrefix() override { throw Error(); }
};

struct NotAStandardError {};

TEST_F(UnexpectedErrors, AnyOtherErrorGivesAnEmptyResultAndOneErrorLine) {
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
