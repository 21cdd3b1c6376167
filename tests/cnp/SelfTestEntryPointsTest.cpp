// The self-test entry points print their fixed cases.

#include "PlanWorld.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_49.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;
using namespace planworld;

using SelfTestEntryPoints = PlanTest;

namespace {

template <class Run> std::string printed(Run run) {
    testing::internal::CaptureStdout();
    run();
    return testing::internal::GetCapturedStdout();
}

} // namespace

TEST_F(SelfTestEntryPoints, AreaCodeTreePrintsThreeExtractionsAndTheTree) {
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

TEST_F(SelfTestEntryPoints, GermanyAndAustriaPrintTheirFixedCases) {
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
}

TEST_F(SelfTestEntryPoints, UnknownCountryIsReportedNotThrown) {
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    EXPECT_EQ(printed([] { KesCNP_49::main(nullptr); }), "Country code 'DE' is not supported\n");
}
