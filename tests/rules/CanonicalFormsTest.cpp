// The default canonical form, the masks, the decomposition and the compact GSM form.
#include "FacadeWorld.h"

using CanonicalForms = facadeworld::FacadeTest;

TEST_F(CanonicalForms, DefaultCanonicalNumbers) {
    const std::string cases[][4] = {
        // number, country, area code, expected
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
        {"0123", "XX", "1", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->generateDefaultCanonicalNumber(c[0], c[1], c[2]), c[3])
            << c[0] << " " << c[1] << " " << c[2];
}

TEST_F(CanonicalForms, MaskLetters) {
    const std::string cases[][3] = {
        {"+33 (1) 23456789", "+C (a) xx xx xx xx", "+33 (1) 23 45 67 89"},
        // "a" leaves the national prefix out; the digit the mask did not place follows directly.
        {"+33 (0) 612345678", "+C (a) xx xx xx xx", "+33 () 61 23 45 678"},
        {"+33 (0) 612345678", "+C (A) xx", "+33 (0) 612345678"},
        // A blank of the subscriber part uses up an "x" without placing anything.
        {"+33 (1) 23 45", "xxxxx", "2345"},
        // A country unknown to the rules has no national prefix to leave out.
        {"+999 (0) 234", "C-a-x", "999-0-234"},
        {"+33 (1)", "+C (A) xx", "+33 (1) "},
        // A mask of places only rewrites what is not laid out as it writes.
        {"+49 (89) 12 34 56", "+C (A) xxxxxx", "+49 (89) 123456"},
        {"+49 (89)-123456", "+C (A) xxxxxx", "+49 (89) 123456"},
        {"+49(89) 123", "+C (A) xxx", "+49(89) (89) 123"},
        // Without both parentheses there is nothing to lay out.
        {"+33 1 23", "+C (A) xx", "+33 1 23"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->formatCanonicalNumber(c[0], c[1]), c[2]) << c[0] << " / " << c[1];
    useMasks("Mask_33_1 = +C (a) xx xx xx xx\nMask_33_2 = C A\n");
    EXPECT_EQ(facade->formatCanonicalNumber("+33 (1) 23456789", ""), "+33 (1) 23 45 67 89");
    // No mask for the country: the empty mask keeps only the subscriber number.
    EXPECT_EQ(facade->formatCanonicalNumber("+39 (06) 12345678", ""), "12345678");
}

TEST_F(CanonicalForms, Decomposition) {
    const std::string cases[][4] = {
        // number, country, area or national prefix, subscriber
        {"+33 (1) 23 45 67 89", "33", "1", "23456789"},
        {"+1 () 5551234", "1", "", "5551234"},
        {"0123456789", "", "", ""},
        // No parentheses: the subscriber part begins behind the first blank.
        {"+44 20 7946", "44", "", "207946"},
        // A "(" in first position opens no area code.
        {"(1) 234", "", "", "234"},
        {"+ 33 (1) 2", "", "1", "2"},
        {"+33 )1( 2", "33", "", "12"},
        {"+33 (1) 23|45-6", "33", "1", "23456"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(facade->extractCountryNumberFromCanonicalNumber(c[0]), c[1]) << c[0];
        EXPECT_EQ(facade->extractAreaCodeOrNatPrefixFromCanonicalNumber(c[0]), c[2]) << c[0];
        EXPECT_EQ(facade->extractExtensionFromCanonicalNumber(c[0]), c[3]) << c[0];
    }
}

TEST_F(CanonicalForms, GsmForm) {
    const std::string cases[][2] = {
        {"+46 (8) 12345678", "+46812345678"},
        // A national prefix written in parentheses is dropped, only when it is exactly the country's.
        {"+46 (0) 812345678", "+46812345678"},
        {"+46 (01) 2345", "+46012345"},
        // Italy has no national prefix, and an unknown country none known: the "0" stays.
        {"+39 (0) 612345", "+390612345"},
        {"+999 (0) 1234", "+99901234"},
        // Blanks and separators a mask put into the subscriber part go.
        {"+46 (8) 12-34.5", "+46812345"},
        {"+46 (8)", "+468"},
        {"+46 8 123", "+46 8 123"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(facade->formatToGSMCanonicalNumber(c[0]), c[1]) << c[0];

    KesDialRulesItem rules = facadeworld::stockholm(5);
    const std::string typed[][2] = {
        {"08 123 456 78", "+46812345678"},
        // Italy writes no area code, so there are no parentheses to compact.
        {"00 39 06 1234", "+39 061234"},
        // Local numbers and service codes come back as the canonical conversion left them.
        {"1234", "1234"},
        {"*21#", "*21#"},
        {"0123x", ""},
    };
    for (const auto& c : typed)
        EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, c[0], false), c[1]) << c[0];
    EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, "008 123 456 78", true), "+46812345678");

    testhost::Tracing tracing;
    facade->formatToGSMCanonicalNumber("+46 8");
    EXPECT_TRUE(
        testhost::logged("DEBUG N9numbering17KesNumberingRulesE - formatToGSMCanonicalNumber('+46 8'"));
    EXPECT_TRUE(testhost::logged("Can't apply pattern to number : '+46 8'"));
}
