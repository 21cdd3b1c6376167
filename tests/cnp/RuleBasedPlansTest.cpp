#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_1.h"
#include "numbering/KesCNP_33.h"
#include "numbering/KesCNP_41.h"
#include "numbering/KesCNP_57.h"
#include "numbering/KesCNP_64.h"
#include "numbering/KesCNP_7.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

#include <Poco/AutoPtr.h>

#include <string>

using namespace numbering;

namespace {

// The plans that read no file, each with a number it converts and its logger's name.
struct PlanCase {
    KesCNP* (*create)();
    const char* className;
    const char* loggerName;
    const char* country;
    const char* number;
};

template <class Plan> KesCNP* make() {
    return new Plan();
}

const PlanCase PLANS[] = {
    {make<KesCNP_1>, "KesCNP_1", "N9numbering8KesCNP_1E", "US", "4155551234"},
    {make<KesCNP_33>, "KesCNP_33", "N9numbering9KesCNP_33E", "FR", "0123456789"},
    {make<KesCNP_41>, "KesCNP_41", "N9numbering9KesCNP_41E", "CH", "0441234567"},
    {make<KesCNP_57>, "KesCNP_57", "N9numbering9KesCNP_57E", "CO", "0511234567"},
    {make<KesCNP_64>, "KesCNP_64", "N9numbering9KesCNP_64E", "NZ", "091234567"},
    {make<KesCNP_7>, "KesCNP_7", "N9numbering8KesCNP_7E", "RU", "84951234567"},
};

class RuleBasedPlans : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
};

} // namespace

TEST_F(RuleBasedPlans, WithoutDialingRulesTheNumberComesBackUnchanged) {
    for (const PlanCase& c : PLANS) {
        Poco::AutoPtr<KesCNP> plan(c.create());
        EXPECT_EQ(plan->dlr_Country_MakeCanonicalNumber(c.number, nullptr), c.number) << c.loggerName;
    }
}

TEST_F(RuleBasedPlans, DebugLinesOnlyWhileTracing) {
    for (const PlanCase& c : PLANS) {
        KesDialRulesItem rules(c.country, "0", 0, "1", 0, "");
        {
            testhost::Tracing off(false);
            Poco::AutoPtr<KesCNP> plan(c.create());
            std::string canonical = plan->dlr_Country_MakeCanonicalNumber(c.number, &rules);
            EXPECT_EQ(canonical[0], '+') << c.loggerName;
            EXPECT_TRUE(testhost::lines().empty()) << c.loggerName;
        }
        testhost::Tracing on;
        Poco::AutoPtr<KesCNP> plan(c.create());
        plan->dlr_Country_MakeCanonicalNumber(c.number, &rules);
        std::string prefix = std::string("DEBUG ") + c.loggerName + " - ";
        EXPECT_TRUE(testhost::logged(prefix + c.className + "()")) << c.loggerName;
        EXPECT_TRUE(testhost::logged(prefix + "dlr_Country_MakeCanonicalNumber('" + c.number +
                                     "', 'CountryCode : '" + c.country + "'"))
            << c.loggerName;
    }
}
