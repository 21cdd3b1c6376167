// How the plans that read area codes take their files: the list, "Translate" and the traces of the
// reading (the default file and each plan's texts are checked for every plan in EveryPlanTest).

#include "PlanWorld.h"
#include "TestHost.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;
using namespace planworld;

namespace {

// No plan file at all unless the test writes one.
class PlanFiles : public PlanTest {
protected:
    PlanFiles() { writesFiles = false; }
};

} // namespace

// Values as Poco reads them (the last of a key, references expanded); the list ends at the first gap
// or value without digits; only leading digits count.
TEST_F(PlanFiles, NumberedList) {
    testconfig::write(installationFile("49"),
                      "Translate=1\nbase=3\nAC_0000=${base}0 Berlin\nAC_0001=99\nAC_0001=0711\nAC_0002=30\n"
                      "AC_0004=221\nOther=5\n");
    testconfig::write(installationFile("31"), "Translate=1\nAC_0000=20\nAC_0001=x10\nAC_0002=10\n");
    Poco::AutoPtr<KesAreaCodePlan> germany = filePlan("49");
    EXPECT_EQ(germany->areaCodeCount, 3) << "a repeated code is counted all the same";
    EXPECT_EQ(germany->maxAreaCodeLength, 4);
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("3012"), "30");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("07119"), "0711") << "loaded as written";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("9912"), "") << "the last value of a key counts";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("2219"), "") << "behind the gap";
    EXPECT_EQ(filePlan("31")->areaCodeCount, 1);
}

TEST_F(PlanFiles, TranslateIsOnlyOneAndItsAbsenceEndsTheReadingExceptForBelgium) {
    struct Case {
        const char* plan;
        const char* translate;
        bool expected;
        int codes;
    } cases[] = {{"44", "1", true, 1},     {"44", "0", false, 1}, {"44", "yes", false, 1},
                 {"44", nullptr, true, 0}, {"32", "0", true, 1},  {"32", nullptr, true, 1}};
    for (const Case& c : cases) {
        writePlanFile(c.plan, c.translate, {"20"});
        Poco::AutoPtr<KesAreaCodePlan> plan = filePlan(c.plan);
        EXPECT_EQ(plan->translate, c.expected) << c.plan << " " << (c.translate ? c.translate : "none");
        EXPECT_EQ(plan->areaCodeCount, c.codes) << c.plan << " " << (c.translate ? c.translate : "none");
    }
}

TEST_F(PlanFiles, MissingFilesLeaveAnEmptyTreeAndTheSummaryIsTraced) {
    writePlanFile("54", "1", {"11", "351"});
    testhost::Tracing on;
    Poco::AutoPtr<KesAreaCodePlan> germany = filePlan("49");
    Poco::AutoPtr<KesAreaCodePlan> argentina = filePlan("54");
    EXPECT_EQ(germany->areaCodeCount, 0);
    EXPECT_TRUE(germany->translate);
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering9KesCNP_49E - KesCNP_49 : "));
    EXPECT_TRUE(testhost::logged("KesCNP_49 :  max length areacode : 0 nb area code : 0"));
    EXPECT_TRUE(testhost::logged("KesCNP_54 :  max length areacode : 3 nb area code : 2"));
}
