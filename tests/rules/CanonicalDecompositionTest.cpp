#include "FacadeWorld.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;

namespace {

class CanonicalDecomposition : public FacadeTest {};

TEST_F(CanonicalDecomposition, SplitsIntoCountryAreaAndSubscriber) {
    struct Case {
        std::string number, country, area, subscriber;
    };
    const std::vector<Case> cases = {
        {"+33 (1) 23 45 67 89", "33", "1", "23456789"},
        {"+33 (0) 612345678", "33", "0", "612345678"},
        {"+1 () 5551234", "1", "", "5551234"},
        {"0123456789", "", "", ""},
        // No parentheses: the subscriber part begins behind the first blank.
        {"+44 20 7946", "44", "", "207946"},
        // A "(" in first position opens no area code.
        {"(1) 234", "", "", "234"},
        {"+33", "33", "", ""},
        {"+ 33 (1) 2", "", "1", "2"},
        {"+33 )1( 2", "33", "", "12"},
        {"+33 (1) 23|45-6", "33", "1", "23456"},
        {"+33 (1)", "33", "1", ""},
        {"", "", "", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(facade->extractCountryNumberFromCanonicalNumber(c.number), c.country) << c.number;
        EXPECT_EQ(facade->extractAreaCodeOrNatPrefixFromCanonicalNumber(c.number), c.area) << c.number;
        EXPECT_EQ(facade->extractExtensionFromCanonicalNumber(c.number), c.subscriber) << c.number;
    }
}

} // namespace
