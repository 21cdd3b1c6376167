#include "AreaCodePlanFiles.h"
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_31.h"
#include "numbering/KesCNP_32.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesCNP_52.h"
#include "numbering/KesCNP_54.h"
#include "numbering/KesCNP_61.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using namespace numbering;
using namespace areacodeplanfiles;

namespace {

struct PlanCase {
    KesAreaCodePlan* (*create)();
    const char* callingCode;
    const char* loggerName;
    const char* textWhenUnopenable;
    const char* textWhenNotFound;
    bool readsTranslate;
};

template <class Plan> KesAreaCodePlan* make() {
    return new Plan();
}

const char* const NO_FILE = "No specific dialing rules configuration file";

// The texts are each plan's own, slips included: 44 names Austria, 353 writes "Irelandd".
const PlanCase PLANS[] = {{make<KesCNP_49>, "49", "N9numbering9KesCNP_49E", NO_FILE, NO_FILE, true},
                          {make<KesCNP_43>, "43", "N9numbering9KesCNP_43E",
                           "No specific configuration file for Austria", NO_FILE, true},
                          {make<KesCNP_31>, "31", "N9numbering9KesCNP_31E",
                           "No specific configuration file for Netherlands", NO_FILE, true},
                          {make<KesCNP_32>, "32", "N9numbering9KesCNP_32E",
                           "No specific configuration file for Belgium", NO_FILE, false},
                          {make<KesCNP_44>, "44", "N9numbering9KesCNP_44E",
                           "No specific configuration file for Austria", NO_FILE, true},
                          {make<KesCNP_353>, "353", "N9numbering10KesCNP_353E",
                           "No specific dialing rules configuration for Irelandd",
                           "No specific dialing rules configuration for Ireland", true},
                          {make<KesCNP_54>, "54", "N9numbering9KesCNP_54E",
                           "No specific configuration file for Argentina",
                           "No specific configuration file for Argentina", true},
                          {make<KesCNP_61>, "61", "N9numbering9KesCNP_61E",
                           "No specific configuration file for Australia", NO_FILE, true},
                          {make<KesCNP_52>, "52", "N9numbering9KesCNP_52E",
                           "No specific configuration file for Mexico", NO_FILE, true}};

// Puts a plain file where the configuration directory was, so that opening any file in it fails
// with "not a directory"; the directory comes back at the end of the scope.
class DirectoryReplacedByAFile {
public:
    DirectoryReplacedByAFile()
        : directory(testconfig::directory()), aside(directory.substr(0, directory.size() - 1)) {
        std::rename(aside.c_str(), (aside + ".aside").c_str());
        std::FILE* file = std::fopen(aside.c_str(), "w");
        if (file != nullptr)
            std::fclose(file);
    }
    ~DirectoryReplacedByAFile() {
        std::remove(aside.c_str());
        std::rename((aside + ".aside").c_str(), aside.c_str());
    }

private:
    std::string directory;
    std::string aside;
};

using AreaCodePlanFile = AreaCodePlanTest;

} // namespace

TEST_F(AreaCodePlanFile, ListEndsAtTheFirstGapOrValueWithoutDigitsAndKeepsLeadingDigitsOnly) {
    testconfig::write(installationFile("49"), "Translate=1\nAC_0000=30 Berlin\nAC_0001=0711\nAC_0002=30\n"
                                              "AC_0004=221\nOther=5\n");
    testconfig::write(installationFile("31"), "Translate=1\nAC_0000=20\nAC_0001=x10\nAC_0002=10\n");
    Poco::AutoPtr<KesAreaCodePlan> germany(make<KesCNP_49>());
    EXPECT_EQ(germany->areaCodeCount, 3) << "a repeated code is counted all the same";
    EXPECT_EQ(germany->maxAreaCodeLength, 4);
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("3012"), "30");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("07119"), "0711") << "loaded as written";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("2219"), "") << "behind the gap";
    EXPECT_EQ(Poco::AutoPtr<KesAreaCodePlan>(make<KesCNP_31>())->areaCodeCount, 1);
}

TEST_F(AreaCodePlanFile, TranslateIsOnlyOneAndItsAbsenceEndsTheReadingExceptForBelgium) {
    struct Case {
        KesAreaCodePlan* (*create)();
        const char* translate;
        bool expected;
        int codes;
    } cases[] = {{make<KesCNP_44>, "1", true, 1},    {make<KesCNP_44>, "0", false, 1},
                 {make<KesCNP_44>, "yes", false, 1}, {make<KesCNP_44>, nullptr, true, 0},
                 {make<KesCNP_32>, "0", true, 1},    {make<KesCNP_32>, nullptr, true, 1}};
    for (const Case& c : cases) {
        writePlanFile("44", c.translate, {"20"});
        writePlanFile("32", c.translate, {"2"});
        Poco::AutoPtr<KesAreaCodePlan> plan(c.create());
        EXPECT_EQ(plan->translate, c.expected) << (c.translate ? c.translate : "none");
        EXPECT_EQ(plan->areaCodeCount, c.codes) << (c.translate ? c.translate : "none");
    }
}

TEST_F(AreaCodePlanFile, MissingInstallationFileFallsBackToTheDefaultWithThePlansText) {
    for (const PlanCase& c : PLANS) {
        testconfig::write(defaultFile(c.callingCode), "Translate=0\n" + areaCodeLines({"7"}));
        testhost::Tracing off(false);
        Poco::AutoPtr<KesAreaCodePlan> plan(c.create());
        EXPECT_EQ(plan->areaCodeCount, 1) << c.callingCode;
        EXPECT_EQ(plan->translate, !c.readsTranslate) << c.callingCode;
        EXPECT_EQ(testhost::lines().size(), 1u) << c.callingCode;
        EXPECT_TRUE(testhost::logged(std::string("INFO ") + c.loggerName + " - " + c.textWhenNotFound))
            << c.callingCode;
    }
}

TEST_F(AreaCodePlanFile, InstallationFileIsNeverMergedWithTheDefault) {
    writePlanFile("61", "1", {"2"});
    testconfig::write(defaultFile("61"), "Translate=0\n" + areaCodeLines({"2", "3"}));
    Poco::AutoPtr<KesAreaCodePlan> plan(make<KesCNP_61>());
    EXPECT_EQ(plan->areaCodeCount, 1);
    EXPECT_TRUE(plan->translate);
}

TEST_F(AreaCodePlanFile, UnopenableFilesGiveThePlansOtherTextAndAnEmptyTree) {
    DirectoryReplacedByAFile replaced;
    for (const PlanCase& c : PLANS) {
        testhost::Tracing off(false);
        Poco::AutoPtr<KesAreaCodePlan> plan(c.create());
        EXPECT_EQ(plan->areaCodeCount, 0) << c.callingCode;
        EXPECT_TRUE(plan->translate) << c.callingCode;
        EXPECT_TRUE(testhost::logged(std::string("INFO ") + c.loggerName + " - " + c.textWhenUnopenable))
            << c.callingCode;
    }
}

TEST_F(AreaCodePlanFile, MissingFilesLeaveAnEmptyTreeAndTheSummaryIsTraced) {
    writePlanFile("54", "1", {"11", "351"});
    testhost::Tracing on;
    Poco::AutoPtr<KesAreaCodePlan> germany(make<KesCNP_49>());
    Poco::AutoPtr<KesAreaCodePlan> argentina(make<KesCNP_54>());
    EXPECT_EQ(germany->areaCodeCount, 0);
    EXPECT_TRUE(germany->translate);
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering9KesCNP_49E - KesCNP_49()"));
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering9KesCNP_49E - KesCNP_49 : "));
    EXPECT_TRUE(testhost::logged("KesCNP_49 :  max length areacode : 0 nb area code : 0"));
    EXPECT_TRUE(testhost::logged("KesCNP_54 :  max length areacode : 3 nb area code : 2"));
}
