// Example numbers whose canonical form the full conversion cannot show as "+cc (area) subscriber":
// what the shipped world still gets right for them.

#include "ExampleNumbers.h"

#include "numbering/KesCNP.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

using namespace numbering;
using namespace shipped;

namespace {

std::string digitsOf(const std::string& text) {
    std::string digits;
    for (char c : text)
        if (std::isdigit(static_cast<unsigned char>(c)))
            digits += c;
    return digits;
}

} // namespace

// The Argentine mobile example carries the international mobile marker 9 in front of the area code.
TEST(ArgentineMobile, ThePlanWritesItWithTheMobileMarkerAndTheShippedAreaCode) {
    const CountryExamples* argentina = examplesOf("AR");
    ASSERT_NE(argentina, nullptr);
    ASSERT_EQ(argentina->mobile.compare(0, 1, "9"), 0) << argentina->mobile;
    KesNumberingRules::getInstance();
    KesDialRulesItem installation("AR", "0", 0, "351", 0, "");
    KesCNP* plan = KesCNPManager::getInstance()->getCNP("AR");
    ASSERT_NE(plan, nullptr);

    std::string typed = argentina->nationalPrefix + argentina->mobile;
    std::string canonical = plan->dlr_Country_MakeCanonicalNumber(typed, &installation);
    ASSERT_EQ(canonical.compare(0, 7, "+54 9 ("), 0) << typed << " gave '" << canonical << "'";
    EXPECT_EQ(digitsOf(canonical), argentina->callingCode + argentina->mobile) << typed;

    // Dialled nationally the same mobile is 0 + area code + 15 + subscriber number.
    std::size_t open = canonical.find('('), close = canonical.find(") ");
    ASSERT_NE(close, std::string::npos) << canonical;
    std::string national = argentina->nationalPrefix + canonical.substr(open + 1, close - open - 1) + "15" +
                           canonical.substr(close + 2);
    EXPECT_EQ(plan->dlr_Country_MakeCanonicalNumber(national, &installation), canonical) << national;
}

// A Colombian fixed number is 60 + zone digit + 7 digits since 2021; the plan keeps the earlier form
// "+57 (zone digit) number", and the shipped local rule "60F" dials that as today's number.
TEST(ColombianFixedNumber, WrittenInternationallyIsDialledAsTodaysNumberInItsZone) {
    const CountryExamples* colombia = examplesOf("CO");
    ASSERT_NE(colombia, nullptr);
    ASSERT_EQ(colombia->fixed.size(), 10u);
    ASSERT_EQ(colombia->fixed.compare(0, 2, "60"), 0) << colombia->fixed;
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem installation("CO", "0", 0, colombia->fixed.substr(2, 1), 0, "");

    EXPECT_EQ(rules->makePhoneNumber(&installation, "+57 " + colombia->fixed), "0" + colombia->fixed);
}
