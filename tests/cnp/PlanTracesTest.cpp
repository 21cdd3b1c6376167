// The debug lines of the plans: none without tracing, and the lines each plan is known by with it.

#include "PlanWorld.h"
#include "TestHost.h"

#include "numbering/KesCNPManager.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace numbering;
using namespace planworld;

using PlanTraces = PlanTest;

TEST_F(PlanTraces, EveryPlanTracesOnlyWhileTracing) {
    const std::string number = "0201234567";
    for (const char* country :
         {"US", "RU", "NL", "BE", "FR", "CH", "AT", "GB", "DE", "MX", "AR", "CO", "AU", "NZ", "IE"}) {
        const Site site{country, "0", 0, "1"};
        {
            testhost::Tracing off(false);
            site.convert(number);
            EXPECT_EQ(testhost::lines(), std::vector<std::string>()) << site;
        }
        testhost::Tracing on;
        site.convert(number);
        const std::string className = "KesCNP_" + site.callingCode();
        const std::string prefix = "DEBUG " + loggerOf(className) + " - ";
        const char* operation =
            className == "KesCNP_54" || className == "KesCNP_57"
                ? "DlrArgentinaMakeCanonicalNumber('" // the Colombian plan names Argentina
                : "dlr_Country_MakeCanonicalNumber('";
        EXPECT_TRUE(testhost::logged(prefix + className + "()")) << site;
        // The rules' text ends in a NUL character, so the sink shows the line up to the rules only.
        EXPECT_TRUE(
            testhost::logged(prefix + operation + number + "', 'CountryCode : '" + site.country + "'"))
            << site;
    }
}

TEST_F(PlanTraces, ThePlansOwnLines) {
    struct Case {
        Site site;
        std::vector<const char*> numbers;
        std::vector<const char*> lines;
    } cases[] = {
        {{"AR", "0", 0, "11"},
         {"0111543215678", "9999999999"},
         {"DlrArgentinaMakeCanonicalNumber('0111543215678', 'CountryCode : 'AR'",
          "stripNbr('0111543215678', ", "number starts with national prefix:0", "Area code is found:11",
          "Mobile national prefix is found:15", "Argentina stripNumber returns 11/43215678/true",
          "DlrArgentinaMakeCanonicalNumber: strCanPhoneNumber=+54 9 (11) 43215678",
          "Mobile international prefix is found:9",
          "No area code found but prefix mobile international found before: bad format",
          "DlrArgentinaMakeCanonicalNumber: not possible to strip the number",
          "DEBUG N9numbering9KesCNP_54E - KesCNP_54: Destruct"}},
        {{"CO", "0", 0, "1"},
         {"12345678"},
         {"DlrArgentinaMakeCanonicalNumber('12345678', 'CountryCode : 'CO'", "KesCNP_57: Destruct"}},
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

TEST_F(PlanTraces, TheManagerTracesTheLookUp) {
    KesCNPManager::resetInstance();
    testhost::Tracing on;
    KesCNPManager::getInstance()->getCNP("X");
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - getCNP('X')"));
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering13KesCNPManagerE - loadCNPClass('X')"));
    KesCNPManager::resetInstance();
}
