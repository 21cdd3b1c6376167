#include "FacadeWorld.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;

namespace {

class CanonicalFormatting : public FacadeTest {};

TEST_F(CanonicalFormatting, DefaultCanonicalNumbers) {
    struct Case {
        std::string number, countryCode, areaCode, expected;
    };
    const std::vector<Case> cases = {
        {"0123456789", "FR", "1", "+33 (1) 23456789"},
        // The national prefix stands in the parentheses when no area code is known.
        {"0123456789", "FR", "", "+33 (0) 123456789"},
        // An area code given with the national prefix loses it too.
        {"0123456789", "FR", "01", "+33 (1) 23456789"},
        // A number that does not begin with its area code keeps all its digits.
        {"0412345678", "FR", "1", "+33 (1) 412345678"},
        // Italy's long-distance rule places an area code, but it has no national prefix.
        {"0612345678", "IT", "06", "+39 (06) 12345678"},
        {"0612345678", "IT", "", "+39 0612345678"},
        // Norway's long-distance rule places none: whatever area code is passed is ignored.
        {"22123456", "NO", "22", "+47 22123456"},
        {"", "FR", "1", ""},
        {"0123", "", "1", ""},
        {"0123", "XX", "1", ""},
        {"0123", "fr", "1", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->generateDefaultCanonicalNumber(c.number, c.countryCode, c.areaCode), c.expected)
            << c.number << " in " << c.countryCode << " area " << c.areaCode;
}

TEST_F(CanonicalFormatting, MaskLetters) {
    struct Case {
        std::string number, pattern, expected;
    };
    const std::vector<Case> cases = {
        {"+33 (1) 23456789", "+C (a) xx xx xx xx", "+33 (1) 23 45 67 89"},
        // "a" leaves the national prefix out; the digit the mask did not place follows directly.
        {"+33 (0) 612345678", "+C (a) xx xx xx xx", "+33 () 61 23 45 678"},
        {"+33 (0) 612345678", "+C (A) xx", "+33 (0) 612345678"},
        // A blank of the subscriber part uses up an "x" without placing anything.
        {"+33 (1) 23 45", "xxxxx", "2345"},
        // A country unknown to the rules has no national prefix to leave out.
        {"+999 (0) 234", "C-a-x", "999-0-234"},
        {"+33 (1)", "+C (A) xx", "+33 (1) "},
        // Without both parentheses there is nothing to lay out.
        {"+33 1 23", "+C (A) xx", "+33 1 23"},
        {"+33 1) 23", "+C (A) xx", "+33 1) 23"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->formatCanonicalNumber(c.number, c.pattern), c.expected)
            << c.number << " / " << c.pattern;
}

TEST_F(CanonicalFormatting, EmptyPatternTakesTheCountryMask) {
    useMasks("Mask_33_1 = +C (a) xx xx xx xx\nMask_33_2 = C A\n");
    EXPECT_EQ(facade->formatCanonicalNumber("+33 (1) 23456789", ""), "+33 (1) 23 45 67 89");
    // No mask for the country: the empty mask keeps only the subscriber number.
    EXPECT_EQ(facade->formatCanonicalNumber("+39 (06) 12345678", ""), "12345678");
}

} // namespace
