// Configuration files far larger than any real one: the library loads what it can and keeps
// converting without taking the host down. (The property-file fuzzer feeds it broken ones.)
#include "TestConfig.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;

namespace {

// Countries of the standard dialing rules, every one with a plan or a strategy of its own among them.
const char* const COUNTRIES[] = {"FR", "DE", "AT", "NL", "BE", "GB", "IE", "AU",
                                 "AR", "MX", "CO", "RU", "US", "CH", "NZ", "IT"};

const char* const NUMBERS[] = {"01 23 45 67 89", "+49 (89) 123456", "0111543215678", "033001234567",
                               "84951234567",    "5551234",         "*12#",          "+"};

/// Every public conversion at an installation in each country. Returns how many conversions gave a
/// non-empty answer.
int convertEverything() {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    int answers = 0;
    for (const char* country : COUNTRIES) {
        KesDialRulesItem site(country, "0", 4, "11", 0, "00");
        for (const char* number : NUMBERS) {
            answers += !rules->makeCanonicalNumber(&site, number, "").empty();
            answers += !rules->makeCanonicalNumber(&site, number, "", true).empty();
            answers += !rules->makePhoneNumber(&site, number).empty();
            answers += !rules->addExternalPrefix(&site, number).empty();
            answers += !rules->makeGSMCanonicalNumber(&site, number, false).empty();
            if (KesClid* clid = rules->makeClid(&site, number)) {
                ++answers;
                clid->release();
            }
        }
    }
    return answers;
}

} // namespace

// A hundred thousand rows and area codes, then keys and values of a megabyte.
TEST(HostileConfiguration, HugeFiles) {
    testconfig::clearAll();
    std::string rules(testconfig::STANDARD_DIALING_RULES);
    std::string areaCodes = "Translate=1\n";
    for (int i = 0; i < 100000; ++i) {
        rules += "Z" + std::to_string(i) + " = " + std::to_string(i % 1000) + ":00:EF:0F::Land " +
                 std::to_string(i) + ":P\n";
        areaCodes += "AC_" + std::to_string(10000 + i).substr(1) + "=" + std::to_string(100 + i % 900) + "\n";
    }
    testconfig::write("dialingrules.properties", rules);
    for (const char* file : {"tz310cnp_49.properties", "tz310cnp_44.properties", "tz310cnp_54.properties"})
        testconfig::write(file, areaCodes);
    testconfig::reload();
    EXPECT_GT(convertEverything(), 0);
    EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("FR"), "33");

    const std::string megabyte(1 << 20, '7');
    testconfig::write("dialingrules.properties", std::string(testconfig::STANDARD_DIALING_RULES) +
                                                     "ZZ = " + megabyte + ":" + megabyte + ":EF\n" +
                                                     megabyte + " = 1\n");
    testconfig::write("dlr_cnp_mask.properties",
                      "Mask_33_1 = " + megabyte + "\nMask_" + megabyte + "_1 = x\n");
    testconfig::write("tz310cnp_49.properties", "Translate=1\nAC_0000=" + megabyte + "\n");
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=" + megabyte + "\nOP_0000=" + megabyte + "\n");
    testconfig::reload();
    EXPECT_GT(convertEverything(), 0);
    EXPECT_EQ(KesNumberingConfig::getInstance()->getCountryNumber("DE"), "49");
    testconfig::clearAll();
    testconfig::reload();
}
