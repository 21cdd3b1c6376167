#include "AreaCodePlanFiles.h"

#include "numbering/KesCNP_31.h"
#include "numbering/KesCNP_32.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesCNP_52.h"
#include "numbering/KesCNP_54.h"
#include "numbering/KesCNP_61.h"
#include "numbering/KesDialRulesItem.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

#include <string>

using namespace numbering;
using namespace areacodeplanfiles;

using AreaCodePlansOddInputs = AreaCodePlanTest;

// Whatever arrives, a plan answers with the canonical form or the number unchanged.
TEST_F(AreaCodePlansOddInputs, NoInputBreaksAPlan) {
    for (const char* callingCode : {"49", "43", "31", "32", "44", "353", "54", "61", "52"})
        writePlanFile(callingCode, "1", {"1", "2", "30", "301"});
    Poco::AutoPtr<KesCNP> plans[] = {new KesCNP_49, new KesCNP_43, new KesCNP_31,
                                     new KesCNP_32, new KesCNP_44, new KesCNP_353,
                                     new KesCNP_54, new KesCNP_61, new KesCNP_52};
    const std::string inputs[] = {"",
                                  "0",
                                  "00",
                                  "000",
                                  std::string(200, '0'),
                                  std::string(200, '9'),
                                  "+49 (30) 1",
                                  "abc",
                                  std::string("03\0"
                                              "0123",
                                              7),
                                  "\xff\xfe\x80",
                                  "9",
                                  "01"};
    KesDialRulesItem withPrefix("DE", "0", 5, "30", 0, "");
    KesDialRulesItem withoutAnything("DE", "", 0, "", 0, "");
    for (Poco::AutoPtr<KesCNP>& plan : plans)
        for (const std::string& input : inputs)
            for (KesDialRulesItem* rules : {&withPrefix, &withoutAnything}) {
                std::string result = plan->dlr_Country_MakeCanonicalNumber(input, rules);
                EXPECT_TRUE(result == input || result.rfind("+", 0) == 0) << input;
            }
}
