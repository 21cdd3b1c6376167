#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNPFactory.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

using namespace numbering;

namespace {

class PlanManager : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::useStandardWorld();
        KesCNPManager::resetInstance();
    }
    void TearDown() override { KesCNPManager::resetInstance(); }
};

} // namespace

TEST(PlanFactory, MatchesCallingCodesExactly) {
    const char* withPlan[] = {"1",  "31", "32", "33", "41", "43", "44", "49",
                              "52", "54", "57", "61", "64", "7",  "353"};
    for (const char* code : withPlan) {
        KesCNP* plan = KesCNPFactory::CreateInstance(code);
        EXPECT_NE(plan, nullptr) << code;
        if (plan != nullptr)
            plan->release();
    }
    for (const char* code : {"35", "0049", "+49", "49 ", "", "39", "3530"})
        EXPECT_EQ(KesCNPFactory::CreateInstance(code), nullptr) << code;

    KesCNP* irish = KesCNPFactory::CreateInstance("353");
    EXPECT_NE(dynamic_cast<KesCNP_353*>(irish), nullptr);
    irish->release();
}

TEST_F(PlanManager, CachesOnePlanPerCountry) {
    KesCNPManager* manager = KesCNPManager::getInstance();
    KesCNP* german = manager->getCNP("DE");
    ASSERT_NE(german, nullptr);
    EXPECT_NE(dynamic_cast<KesCNP_49*>(german), nullptr);
    EXPECT_EQ(manager->getCNP("DE"), german);

    // A lower-case key misses the cache, builds a plan under the upper-case key and, that key being
    // taken, is answered with the cached plan.
    EXPECT_EQ(manager->getCNP("de"), german);
}

TEST_F(PlanManager, CountriesWithoutPlanAreRemembered) {
    KesCNPManager* manager = KesCNPManager::getInstance();
    EXPECT_EQ(manager->getCNP("X"), nullptr);
    EXPECT_TRUE(manager->isCountryNotFound("X"));
    EXPECT_EQ(manager->getCNP("IT"), nullptr) << "Italy has no plan";
    EXPECT_TRUE(manager->isCountryNotFound("IT"));
    EXPECT_EQ(manager->getCNP("it"), nullptr);
    EXPECT_TRUE(manager->isCountryNotFound("IT")) << "stored upper-cased";
    EXPECT_FALSE(manager->isCountryNotFound("I"));
    EXPECT_EQ(manager->getCNP("QQ"), nullptr) << "unknown to the dialing rules";
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

TEST_F(PlanManager, ResetReleasesEveryPlan) {
    int before = KesCNP::_count;
    KesCNPManager* manager = KesCNPManager::getInstance();
    ASSERT_NE(manager->getCNP("DE"), nullptr);
    ASSERT_NE(manager->getCNP("FR"), nullptr);
    EXPECT_EQ(KesCNP::_count, before + 2);
    KesCNPManager::resetInstance();
    EXPECT_EQ(KesCNP::_count, before);
    EXPECT_FALSE(KesCNPManager::getInstance()->isCountryNotFound("X"));
}

TEST_F(PlanManager, TracesTheLookUp) {
    testhost::Tracing on;
    KesCNPManager::getInstance()->getCNP("X");
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - getCNP('X')"));
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - loadCNPClass('X')"));
}
