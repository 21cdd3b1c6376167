#include "FacadeWorld.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::invalidArgumentText;
using facadeworld::stockholm;

namespace {

class GsmCanonicalNumber : public FacadeTest {};

TEST_F(GsmCanonicalNumber, CompactsCanonicalNumbers) {
    struct Case {
        std::string canonical, expected;
    };
    const std::vector<Case> cases = {
        {"+46 (8) 12345678", "+46812345678"},
        // A national prefix written in parentheses is dropped ...
        {"+46 (0) 812345678", "+46812345678"},
        // ... only when it is exactly the country's.
        {"+46 (01) 2345", "+46012345"},
        // Italy has no national prefix: its "0" in parentheses stays.
        {"+39 (0) 612345", "+390612345"},
        // An unknown country keeps its area part.
        {"+999 (0) 1234", "+99901234"},
        // Blanks and separators a mask put into the subscriber part go.
        {"+46 (8) 123 45", "+46812345"},
        {"+46 (8) 12-34.5", "+46812345"},
        {"+46 (8)", "+468"},
        {"+46 8 123", "+46 8 123"},
        {"+46 (8) 1***2", "+46 (8) 1***2"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->formatToGSMCanonicalNumber(c.canonical), c.expected) << c.canonical;
}

TEST_F(GsmCanonicalNumber, FromAnyTypedNumber) {
    KesDialRulesItem rules = stockholm(5);
    struct Case {
        std::string typed, expected;
    };
    const std::vector<Case> cases = {
        {"08 123 456 78", "+46812345678"},
        {"+46 8 123 456 78", "+46812345678"},
        // Italy writes no area code, so there are no parentheses to compact.
        {"00 39 06 1234", "+39 061234"},
        // Local numbers and service codes come back as the canonical conversion left them.
        {"1234", "1234"},
        {"*21#", "*21#"},
        {"0123x", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, c.typed, false), c.expected) << c.typed;
    EXPECT_EQ(facade->makeGSMCanonicalNumber(&rules, "008 123 456 78", true), "+46812345678");
    EXPECT_EQ(invalidArgumentText([&] { facade->makeGSMCanonicalNumber(nullptr, "1", false); }),
              "'myKesDialRulesItem' parameter can not be null");
}

TEST_F(GsmCanonicalNumber, TracesWithoutClosingParenthesis) {
    testhost::Tracing tracing;
    facade->formatToGSMCanonicalNumber("+46 8");
    EXPECT_TRUE(
        testhost::logged("DEBUG N9numbering17KesNumberingRulesE - formatToGSMCanonicalNumber('+46 8'"));
    EXPECT_TRUE(testhost::logged("Can't apply pattern to number : '+46 8'"));
}

} // namespace
