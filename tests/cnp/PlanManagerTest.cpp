// The factory of plans by calling code and the manager that caches them by country.

#include "PlanWorld.h"
#include "TestHost.h"

#include "numbering/KesCNPManager.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_49.h"

#include <gtest/gtest.h>

using namespace numbering;
using namespace planworld;

using PlanManager = PlanTest; // the world's reload resets the manager before and after each test

// Every code of the registry gives its plan (EveryPlanTest); nothing else does.
TEST(PlanFactory, MatchesCallingCodesExactly) {
    for (const char* code : {"35", "0049", "+49", "49 ", "", "39", "3530"})
        EXPECT_EQ(KesCNPFactory::CreateInstance(code), nullptr) << code;
    EXPECT_NE(dynamic_cast<KesCNP_353*>(plan("353").get()), nullptr);
}

TEST_F(PlanManager, CachesOnePlanPerCountryAndRemembersCountriesWithout) {
    KesCNPManager* manager = KesCNPManager::getInstance();
    KesCNP* german = manager->getCNP("DE");
    EXPECT_NE(dynamic_cast<KesCNP_49*>(german), nullptr);
    EXPECT_EQ(manager->getCNP("DE"), german);
    // A lower-case key misses the cache, builds a plan under the upper-case key and, that key being
    // taken, is answered with the cached plan.
    EXPECT_EQ(manager->getCNP("de"), german);
    {
        testhost::Tracing on;
        EXPECT_EQ(manager->getCNP("X"), nullptr);
        EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - getCNP('X')"));
        EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - loadCNPClass('X')"));
    }
    EXPECT_TRUE(manager->isCountryNotFound("X"));
    EXPECT_EQ(manager->getCNP("it"), nullptr) << "Italy has no plan";
    EXPECT_TRUE(manager->isCountryNotFound("IT")) << "stored upper-cased";
    EXPECT_FALSE(manager->isCountryNotFound("I"));
    EXPECT_EQ(manager->getCNP("QQ"), nullptr) << "unknown to the dialing rules";
    KesCNPManager::resetInstance();
    EXPECT_FALSE(KesCNPManager::getInstance()->isCountryNotFound("X")) << "forgotten with the reset";
}

TEST_F(PlanManager, SwitchedOffCountryGetsNoPlan) {
    // Only a country number reading as 0 sees the file's switch.
    testconfig::write("dialingrules.properties",
                      std::string(testconfig::STANDARD_DIALING_RULES) + "XZ = 0:00:EF:0F::Zero:P\n");
    testconfig::write("specific_format_activation.properties", "cnp_0 = off\n");
    testconfig::reload();
    KesCNPManager* manager = KesCNPManager::getInstance();
    EXPECT_EQ(manager->getCNP("XZ"), nullptr);
    EXPECT_TRUE(manager->isCountryNotFound("XZ"));
    EXPECT_NE(manager->getCNP("DE"), nullptr) << "other countries keep their plans";
}
