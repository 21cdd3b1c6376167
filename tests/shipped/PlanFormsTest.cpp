// Example numbers whose canonical form the full conversion cannot show as "+cc (area) subscriber":
// what the shipped world still gets right for them.

#include "ExampleNumbers.h"

#include "numbering/KesCNP.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

using namespace numbering;
using namespace shipped;

// The Argentine mobile example carries the international mobile marker 9 in front of the area code.
TEST(ArgentineMobile, ThePlanWritesItWithTheMobileMarkerAndTheShippedAreaCode) {
    const CountryExamples* argentina = examplesOf("AR");
    ASSERT_TRUE(argentina != nullptr && argentina->mobile[0] == '9');
    KesNumberingRules::getInstance();
    KesDialRulesItem installation("AR", "0", 0, "351", 0, "");
    KesCNP* plan = KesCNPManager::getInstance()->getCNP("AR");
    ASSERT_NE(plan, nullptr);

    // "+54 9 (area) subscriber", and dialled nationally the same mobile is 0 + area + 15 + subscriber.
    const std::string canonical =
        plan->dlr_Country_MakeCanonicalNumber(argentina->nationalPrefix + argentina->mobile, &installation);
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(canonical, parts, std::regex("\\+54 9 \\((\\d+)\\) (\\d+)"))) << canonical;
    EXPECT_EQ(parts.str(1) + parts.str(2), argentina->mobile.substr(1)) << canonical;
    EXPECT_EQ(plan->dlr_Country_MakeCanonicalNumber(
                  argentina->nationalPrefix + parts.str(1) + "15" + parts.str(2), &installation),
              canonical);
}

// A Colombian fixed number is 60 + zone digit + 7 digits since 2021; the plan keeps the earlier form
// "+57 (zone digit) number", and the shipped local rule "60F" dials that as today's number.
TEST(ColombianFixedNumber, WrittenInternationallyIsDialledAsTodaysNumberInItsZone) {
    const CountryExamples* colombia = examplesOf("CO");
    ASSERT_TRUE(colombia != nullptr && colombia->fixed.size() == 10u &&
                colombia->fixed.compare(0, 2, "60") == 0);
    KesDialRulesItem installation("CO", "0", 0, colombia->fixed.substr(2, 1), 0, "");
    EXPECT_EQ(KesNumberingRules::getInstance()->makePhoneNumber(&installation, "+57 " + colombia->fixed),
              "0" + colombia->fixed);
}
