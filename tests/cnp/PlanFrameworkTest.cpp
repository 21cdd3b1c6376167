// The factory, the manager's cache, how plans read their files, and what the plans write.
#include "PlanWorld.h"

#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_49.h"

using namespace planworld;
using testhost::printed;

// Every code of the registry gives its plan (EveryPlanTest); nothing else does.
TEST(PlanFactory, MatchesCallingCodesExactly) {
    for (const char* code : {"35", "0049", "+49", "49 ", "", "39", "3530"})
        EXPECT_EQ(KesCNPFactory::CreateInstance(code), nullptr) << code;
    EXPECT_NE(dynamic_cast<KesCNP_353*>(plan("353").get()), nullptr);
}

TEST_F(PlanTest, CachesOnePlanPerCountryAndRemembersCountriesWithout) {
    KesCNPManager* manager = KesCNPManager::getInstance();
    KesCNP* german = manager->getCNP("DE");
    EXPECT_NE(dynamic_cast<KesCNP_49*>(german), nullptr);
    EXPECT_EQ(manager->getCNP("DE"), german);
    // A lower-case key misses the cache; the plan it builds is filed under the upper-case key.
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

TEST_F(PlanTest, SwitchedOffCountryGetsNoPlan) {
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

// Values as Poco reads them (the last of a key, references expanded); the list ends at the first gap
// or value without digits; only leading digits count.
TEST_F(NoPlanFiles, NumberedList) {
    testconfig::write(KesCNPRegistry::installationFile("49"),
                      "Translate=1\nbase=3\nAC_0000=${base}0 Berlin\nAC_0001=99\nAC_0001=0711\nAC_0002=30\n"
                      "AC_0004=221\nOther=5\n");
    testconfig::write(KesCNPRegistry::installationFile("31"),
                      "Translate=1\nAC_0000=20\nAC_0001=x10\nAC_0002=10\n");
    Poco::AutoPtr<KesAreaCodePlan> germany = filePlan("49");
    EXPECT_EQ(germany->areaCodeCount, 3) << "a repeated code is counted all the same";
    EXPECT_EQ(germany->maxAreaCodeLength, 4);
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("3012"), "30");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("07119"), "0711") << "loaded as written";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("9912"), "") << "the last value of a key counts";
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("2219"), "") << "behind the gap";
    EXPECT_EQ(filePlan("31")->areaCodeCount, 1);
}

TEST_F(NoPlanFiles, TranslateIsOnlyOneAndItsAbsenceEndsTheReadingExceptForBelgium) {
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

TEST_F(NoPlanFiles, MissingFilesLeaveAnEmptyTreeAndTheSummaryIsTraced) {
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

TEST_F(PlanTest, ThePlansOwnLines) {
    struct Case {
        Site site;
        std::vector<const char*> numbers;
        std::vector<const char*> lines;
    } cases[] = {
        {{"AR", "0", 0, "11"},
         {"0111543215678", "9999999999"},
         {"DlrArgentinaMakeCanonicalNumber('0111543215678', 'CountryCode : 'AR'",
          "stripNbr('0111543215678', ", "Mobile national prefix is found:15",
          "Argentina stripNumber returns 11/43215678/true",
          "DlrArgentinaMakeCanonicalNumber: strCanPhoneNumber=+54 9 (11) 43215678",
          "Mobile international prefix is found:9",
          "No area code found but prefix mobile international found before: bad format",
          "DlrArgentinaMakeCanonicalNumber: not possible to strip the number",
          "DEBUG N9numbering9KesCNP_54E - KesCNP_54: Destruct"}},
        {{"CO", "0", 0, "1"}, {"12345678"}, {"KesCNP_57: Destruct"}},
        {{"IE", "0", 0, "1"},
         {"011234567"},
         {"N9numbering10KesCNP_353E - DlrCountryMakeCanonicalNumber returns '+353 (1) 1234567'"}},
        {{"NL", "0", 0, "20"},
         {"0201234567"},
         {"N9numbering9KesCNP_31E - dlr_Country_MakeCanonicalNumber returns '+31 (20) 1234567'",
          "'201234567' isn't an area code, but begins with '20' which is an area code"}},
    };
    for (const Case& c : cases) {
        testhost::Tracing on;
        for (const char* number : c.numbers)
            c.site.convert(number);
        for (const char* line : c.lines)
            EXPECT_TRUE(testhost::logged(line)) << line;
    }
    // The single-pass plans close with the result only for numbers long enough to be converted.
    testhost::Tracing on;
    Site{"NL", "0", 0, "20"}.convert("020");
    EXPECT_EQ(testhost::countLogged("returns '"), 0);
}

TEST_F(PlanTest, SelfTestOfTheAreaCodeTree) {
    std::string out = printed([] { KesAreaCodeTree::main(nullptr); });
    EXPECT_EQ(out.rfind("Extract area code from '123456789' : 123456\n"
                        "Extract area code from '123056789' : 123\n"
                        "Extract area code from '987654321' : \n"
                        "Root : ",
                        0),
              0u)
        << out;
    int flagged = 0;
    for (std::size_t at = out.find(" (true)"); at != std::string::npos; at = out.find(" (true)", at + 1))
        ++flagged;
    EXPECT_EQ(flagged, 11) << "every insert succeeds";
}

TEST_F(PlanTest, SelfTestsOfGermanyAndAustria) {
    // The shared world gives Germany 30, 89, 221 and 711, Austria 1, 316 and 662.
    EXPECT_EQ(printed([] { KesCNP_49::main(nullptr); }),
              "Dialing rules : " + KesDialRulesItem("DE", "1", 5, "170", 0, "").ToString() +
                  "\nLocal 76985411 -> +49 (170) 76985411\n"
                  "Local + prefixe 176985411 -> +49 (170) 76985411\n"
                  "National 0771176985411 -> +49 (711) 76985411\n"
                  "National + prefixe 10771176985411 -> +49 (711) 76985411\n");
    EXPECT_EQ(printed([] { KesCNP_43::main(nullptr); }),
              "Dialing rules : " + KesDialRulesItem("AT", "1", 4, "1", 0, "").ToString() +
                  "\nLocal 27722 -> +43 (1) 27722\n"
                  "Local + prefixe 127722 -> +43 (1) 27722\n"
                  "National 0127722 -> +43 (1) 27722\n"
                  "National + prefixe 10127722 -> +43 (1) 27722\n");
    // An unknown country is reported, not thrown.
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    EXPECT_EQ(printed([] { KesCNP_49::main(nullptr); }), "Country code 'DE' is not supported\n");
}
