// Configuration files far larger than any real one: the library loads what it can and keeps
// converting without taking the host down. (The property-file fuzzer feeds it broken ones.)
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesClid.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace numbering;

namespace {

const char* const COUNTRIES[] = {"FR", "DE", "AT", "NL", "BE", "GB", "IE", "AU", "AR",
                                 "MX", "CO", "RU", "KZ", "US", "CH", "NZ", "IT", "XA"};

const char* const NUMBERS[] = {"01 23 45 67 89", "+49 (89) 123456", "0111543215678", "033001234567",
                               "84951234567",    "5551234",         "*12#",          "+"};

/// Every public conversion for every installation the rules accept, plus one built without checks.
/// Returns how many conversions gave a non-empty answer.
int convertEverything() {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    std::vector<std::unique_ptr<KesDialRulesItem>> sites;
    sites.emplace_back(new KesDialRulesItem()); // "FR", whatever the rules say
    sites.back()->setExtPrefix("0");
    for (const char* country : COUNTRIES) {
        try {
            sites.emplace_back(new KesDialRulesItem(country, "0", 4, "11", 0, "00"));
        } catch (const KesUnsupportedCountryException&) {
        }
    }
    int answers = 0;
    for (auto& site : sites) {
        for (const char* number : NUMBERS) {
            answers += !rules->makeCanonicalNumber(site.get(), number, "").empty();
            answers += !rules->makeCanonicalNumber(site.get(), number, "", true).empty();
            answers += !rules->makePhoneNumber(site.get(), number).empty();
            answers += !rules->addExternalPrefix(site.get(), number).empty();
            answers += !rules->makeGSMCanonicalNumber(site.get(), number, false).empty();
            if (KesClid* clid = rules->makeClid(site.get(), number)) {
                ++answers;
                clid->release();
            }
        }
    }
    return answers;
}

class HostileConfiguration : public ::testing::Test {
protected:
    void SetUp() override { testconfig::clearAll(); }
    void TearDown() override {
        testconfig::clearAll();
        testconfig::reload();
    }
};

} // namespace

// A hundred thousand rows and area codes, then keys and values of a megabyte.
TEST_F(HostileConfiguration, HugeFiles) {
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
}
