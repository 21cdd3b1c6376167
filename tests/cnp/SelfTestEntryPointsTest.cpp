#include "AreaCodePlanFiles.h"
#include "TestConfig.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesDialRulesItem.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;
using namespace areacodeplanfiles;

using SelfTestEntryPoints = AreaCodePlanTest;

namespace {

int occurrences(const std::string& text, const std::string& piece) {
    int count = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
        ++count;
    return count;
}

} // namespace

TEST_F(SelfTestEntryPoints, AreaCodeTreePrintsThreeExtractionsAndTheTree) {
    testing::internal::CaptureStdout();
    KesAreaCodeTree::main(nullptr);
    std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(out.rfind("Extract area code from '123456789' : 123456\n"
                        "Extract area code from '123056789' : 123\n"
                        "Extract area code from '987654321' : \n"
                        "Root : ",
                        0),
              0u)
        << out;
    EXPECT_EQ(occurrences(out, " (true)"), 11) << "every insert succeeds";
}

TEST_F(SelfTestEntryPoints, GermanyPrintsItsFixedCases) {
    writePlanFile("49", "1", {"30", "711"});
    std::string rules = KesDialRulesItem("DE", "1", 5, "170", 0, "").ToString();
    testing::internal::CaptureStdout();
    KesCNP_49::main(nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Dialing rules : " + rules +
                  "\n"
                  "Local 76985411 -> +49 (170) 76985411\n"
                  "Local + prefixe 176985411 -> +49 (170) 76985411\n"
                  "National 0771176985411 -> +49 (711) 76985411\n"
                  "National + prefixe 10771176985411 -> +49 (711) 76985411\n");
}

TEST_F(SelfTestEntryPoints, AustriaPrintsItsFixedCases) {
    writePlanFile("43", "1", {"1", "316"});
    std::string rules = KesDialRulesItem("AT", "1", 4, "1", 0, "").ToString();
    testing::internal::CaptureStdout();
    KesCNP_43::main(nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Dialing rules : " + rules +
                                                          "\n"
                                                          "Local 27722 -> +43 (1) 27722\n"
                                                          "Local + prefixe 127722 -> +43 (1) 27722\n"
                                                          "National 0127722 -> +43 (1) 27722\n"
                                                          "National + prefixe 10127722 -> +43 (1) 27722\n");
}

TEST_F(SelfTestEntryPoints, UnknownCountryIsReportedNotThrown) {
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    testing::internal::CaptureStdout();
    KesCNP_49::main(nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Country code 'DE' is not supported\n");
}
