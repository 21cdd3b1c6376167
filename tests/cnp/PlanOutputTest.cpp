// What the plans write: their own debug lines, and the fixed cases that the
// self-test entry points print.

#include "PlanWorld.h"
#include "TestHost.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_49.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace numbering;
using namespace planworld;

using PlanOutput = PlanTest;

namespace {

template <class Run> std::string printed(Run run) {
    testing::internal::CaptureStdout();
    run();
    return testing::internal::GetCapturedStdout();
}

} // namespace

TEST_F(PlanOutput, ThePlansOwnLines) {
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

TEST_F(PlanOutput, SelfTestOfTheAreaCodeTree) {
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

TEST_F(PlanOutput, SelfTestsOfGermanyAndAustria) {
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
