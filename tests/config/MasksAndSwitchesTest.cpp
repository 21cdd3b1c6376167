#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

#include <algorithm>

using numbering::KesNumberingConfig;

namespace {

class MasksAndSwitches : public ::testing::Test {
protected:
    void SetUp() override {
        testconfig::clearAll();
        testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n"
                                                     "DE = 49:00:EF:0F::Germany:P\n");
    }
    void TearDown() override { testconfig::reload(); }

    KesNumberingConfig* load(const std::string& masks, const std::string& switches) {
        testconfig::write("dlr_cnp_mask.properties", masks);
        testconfig::write("specific_format_activation.properties", switches);
        testconfig::reload();
        return KesNumberingConfig::getInstance();
    }
};

} // namespace

TEST_F(MasksAndSwitches, MaskKeys) {
    KesNumberingConfig* config = load("Mask_33_1 = +C (a) xx xx xx xx\n"
                                      "Mask_33_2 = second\n"   // the first key of a country wins
                                      "Mask_1234_1 = four\n"   // four-character country number
                                      "Mask_49 = no second underscore\n"
                                      "Mask_7_1 =\n"           // empty value ignored
                                      "Mask_7_2 = seven\n"
                                      "xMask_3_ = none\n"      // sixth character is "_": empty number
                                      "xxMask_3_1 = odd\n"     // cut from the sixth character: "k"
                                      "Other = x\n",
                                      "");
    EXPECT_EQ(config->getDefaultPattern("33"), "+C (a) xx xx xx xx");
    EXPECT_EQ(config->getDefaultPattern("1234"), "");
    EXPECT_EQ(config->getDefaultPattern("49"), "");
    EXPECT_EQ(config->getDefaultPattern("7"), "seven");
    EXPECT_EQ(config->getDefaultPattern("k"), "odd");
    EXPECT_EQ(config->getDefaultPattern(""), "");
}

TEST_F(MasksAndSwitches, MaskCountLineSkipsAsManyCharactersAsMasksLoaded) {
    testhost::Tracing on;
    load("Mask_33_1 = a\nMask_49_1 = b\nMask_7_1 = c\n", "");
    // Three masks skip three characters of " country masks loaded".
    EXPECT_TRUE(testhost::logged("N9numbering18KesNumberingConfigE - untry masks loaded"));
    testhost::clear();
    std::string many;
    for (int i = 100; i < 130; ++i)
        many += "Mask_" + std::to_string(i) + "_1 = m\n";
    load(many, "");
    // More masks than characters: an empty message, never a read outside the text.
    EXPECT_TRUE(std::find(testhost::lines().begin(), testhost::lines().end(),
                          "DEBUG N9numbering18KesNumberingConfigE - ") != testhost::lines().end());
}

TEST_F(MasksAndSwitches, MissingMaskFileFallsBackWithTheDialingRulesText) {
    testconfig::write("dlr_cnp_mask_default.properties", "Mask_49_1 = default\n");
    testconfig::reload();
    testhost::clear();
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    EXPECT_EQ(config->getDefaultPattern("49"), "default");
    EXPECT_TRUE(testhost::logged("INFO N9numbering18KesNumberingConfigE - No specific format activation configuration file"));
    EXPECT_TRUE(testhost::logged("KesNumberingConfig::loadSpecificFormatActivation Exception : "));
}

TEST_F(MasksAndSwitches, SwitchesAreFiledUnderZero) {
    testhost::Tracing on;
    KesNumberingConfig* config = load("", "cnp_33 = OFF\ncnp_49 = on\n");
    EXPECT_TRUE(testhost::logged("Desactivating specific format for France"));
    EXPECT_TRUE(testhost::logged("Activating specific format for Germany"));
    // Every country number reading as non-zero stays active; the first switch sits under 0.
    EXPECT_TRUE(config->isSpecificFormatActiveForCountry("33"));
    EXPECT_TRUE(config->isSpecificFormatActiveForCountry("49"));
    EXPECT_FALSE(config->isSpecificFormatActiveForCountry("0"));
    EXPECT_FALSE(config->isSpecificFormatActiveForCountry("abc"));
    EXPECT_TRUE(config->isSpecificFormatActiveForCountry(""));
}

TEST_F(MasksAndSwitches, SwitchValuesAndKeys) {
    struct Case {
        const char* file;
        bool zeroActive;
        const char* traced;
    } cases[] = {
        {"cnp_33 = ON\n", true, "Activating specific format for France"},
        {"cnp_33 = 1\n", true, "Activating specific format for France"},
        {"cnp_33 = False\n", false, "Desactivating specific format for France"},
        {"cnp_33 = 0\n", false, "Desactivating specific format for France"},
        {"cnp_33 = maybe\n", true, "Invalid value for property 'cnp_' : maybe"},
        {"cnp_99 = off\n", true, "Invalid property 'cnp_99'"},
        {"cnp_3333 = off\nxcnp_33 = off\ncnp_ = off\n", true, nullptr},
        {"cnp_33 =\n", true, nullptr},
    };
    for (const Case& c : cases) {
        testhost::Tracing on;
        KesNumberingConfig* config = load("", c.file);
        EXPECT_EQ(config->isSpecificFormatActiveForCountry("0"), c.zeroActive) << c.file;
        if (c.traced != nullptr) {
            EXPECT_TRUE(testhost::logged(c.traced)) << c.file;
        }
    }
}
