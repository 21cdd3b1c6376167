#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

using numbering::KesNumberingConfig;

namespace {

class NumberingConfig : public ::testing::Test {
protected:
    void SetUp() override { testconfig::clearAll(); }
    void TearDown() override { testconfig::reload(); }

    KesNumberingConfig* load(const std::string& dialingRules) {
        testconfig::write("dialingrules.properties", dialingRules);
        testconfig::reload();
        return KesNumberingConfig::getInstance();
    }
};

} // namespace

TEST_F(NumberingConfig, FieldSplitting) {
    KesNumberingConfig* config = load("FR = 33:00:00:0F:F:France:P\n"
                                      "AA = 11:00:EF::G:Short\n"                // no primary flag
                                      "BB = 22:00\n"                            // two fields only
                                      "CC = 35:00:EF:0F:0F:Long:P:extra:more\n" // extra fields ignored
                                      "DD = 44::EF:0F::Empty:P\n");             // an empty field
    EXPECT_EQ(config->getCountryCodeFromNumber("33"), "FR");
    EXPECT_EQ(config->getCountryCodeFromName("France"), "FR");
    EXPECT_EQ(config->getCountryRule("FR")->getLongDistPrefix(), "0");
    EXPECT_EQ(config->getCountryCodeFromNumber("11"), "") << "not primary";
    EXPECT_EQ(config->extractCountryNumber("11234"), "");
    EXPECT_EQ(config->getCountryNumber("AA"), "11");
    EXPECT_EQ(config->getCountryRule("AA")->getLocalRule(), "G");
    EXPECT_EQ(config->getCountryRule("BB")->getInternatRule(), "");
    EXPECT_EQ(config->getCountryName("BB"), "");
    EXPECT_EQ(config->getCountryCodeFromNumber("35"), "CC");
    EXPECT_EQ(config->getCountryRule("DD")->getInternatPfx(), "");
    EXPECT_EQ(config->getCountryRule("DD")->getInternatRule(), "EF");
}

TEST_F(NumberingConfig, FirstKeyWinsForSharedNamesAndNumbers) {
    KesNumberingConfig* config = load("CA = 1:011:EF:1F::North America:P\n"
                                      "US = 1:011:EF:1F::North America:P\n");
    EXPECT_EQ(config->getCountryCodeFromNumber("1"), "CA");
    EXPECT_EQ(config->getCountryCodeFromName("North America"), "CA");
    EXPECT_EQ(config->getCountryList().size(), 1u);
    EXPECT_TRUE(config->validCountryCode("US"));
}

TEST_F(NumberingConfig, ShortestCountryNumberWinsUpToFourCharacters) {
    KesNumberingConfig* config = load("AG = 1268:011:EF:1F::Antigua:P\n"
                                      "US = 1:011:EF:1F::United States:P\n"
                                      "XA = 9999:00:EF:0F::Four:P\n"
                                      "XB = 99999:00:EF:0F::Five:P\n");
    EXPECT_EQ(config->extractCountryNumber("12685551234"), "1");
    EXPECT_EQ(config->extractCountryNumber("99991234"), "9999");
    EXPECT_EQ(config->extractCountryNumber("99999123"), "9999");
    EXPECT_EQ(config->extractCountryNumber("+12685551234"), "") << "a plus is not stripped";
    EXPECT_EQ(config->extractCountryNumber(""), "");
}

TEST_F(NumberingConfig, LookUpsDemandTwoCharacterCodes) {
    KesNumberingConfig* config = load("FR = 33:00:EF:0F::France:P\n"
                                      "fra = 99:00:EF:0F::Lower:P\n"
                                      "F = 98:00:EF:0F::One:P\n");
    for (const char* code : {"fra", "F", "", "fr"}) {
        EXPECT_EQ(config->getCountryName(code), "") << code;
        EXPECT_EQ(config->getCountryNumber(code), "") << code;
        EXPECT_FALSE(config->validCountryCode(code)) << code;
        EXPECT_EQ(config->getCountryRule(code), nullptr) << code;
    }
    EXPECT_EQ(config->getCountryCodeFromName("Lower"), "fra");
    EXPECT_EQ(config->getCountryCodeFromName(""), "");
    EXPECT_EQ(config->getCountryCodeFromNumber(""), "");
}

TEST_F(NumberingConfig, CountryListIsSortedByteWise) {
    KesNumberingConfig* config = load("DE = 49:00:EF:0F::Germany:P\n"
                                      "AT = 43:00:EF:0F::Austria:P\n"
                                      "ZA = 27:00:EF:0F::South Africa:P\n"
                                      "AX = 358:00:EF:0F::aland:\n");
    std::vector<std::string> expected = {"Austria", "Germany", "South Africa", "aland"};
    EXPECT_EQ(config->getCountryList(), expected);
}

TEST_F(NumberingConfig, DefaultFileIsReadOnlyWhenTheInstallationFileIsMissing) {
    testconfig::write("dialingrules_default.properties", "DE = 49:00:EF:0F::Germany:P\n");
    testconfig::reload();
    testhost::clear();
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    EXPECT_TRUE(testhost::logged(
        "INFO N9numbering18KesNumberingConfigE - No specific dialing rules configuration file"));
    EXPECT_EQ(config->getCountryNumber("DE"), "49");

    // With both present the installation file alone counts: the two are never merged.
    config = load("FR = 33:00:EF:0F::France:P\n");
    EXPECT_EQ(config->getCountryNumber("FR"), "33");
    EXPECT_EQ(config->getCountryNumber("DE"), "");
}

TEST_F(NumberingConfig, NoFileAtAllLeavesAnEmptyStore) {
    testconfig::reload();
    testhost::clear();
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    EXPECT_TRUE(testhost::logged(
        "ERROR N9numbering18KesNumberingConfigE - KesNumberingConfig::loadDialingRules Exception : "));
    EXPECT_TRUE(config->getCountryList().empty());
    EXPECT_EQ(config->getCountryCodeFromNumber("33"), "");
    EXPECT_EQ(config->getDefaultPattern("33"), "");
    EXPECT_FALSE(config->loadDialingRules());
}

// Poco's reading: the last value of a repeated key, references expanded. A key with a dot cannot be
// read back (the keys come as "DE", "FR", "NL", "x") and ends the loading; rows before it stay.
TEST_F(NumberingConfig, BrokenFilesLoadWhatTheyCan) {
    KesNumberingConfig* config = load("FR = 33:00:EF:0F::France:P\n"
                                      "DE = 99:00:EF:0F::Wrong:P\n"
                                      "DE = 49:00:EF:0F::Germany:P\n"
                                      "NL = ${x.nl}\n"
                                      "x.nl = 31:00:EF:0F::Netherlands:P\n"
                                      "zz = 27:00:EF:0F::After:P\n");
    EXPECT_EQ(config->getCountryNumber("DE"), "49");
    EXPECT_EQ(config->getCountryCodeFromNumber("99"), "");
    EXPECT_EQ(config->getCountryNumber("NL"), "31");
    EXPECT_TRUE(testhost::logged("ERROR N9numbering18KesNumberingConfigE - "
                                 "KesNumberingConfig::loadDialingRules Exception : Not found"));
    EXPECT_EQ(config->getCountryCodeFromNumber("27"), "");

    config = load(std::string("\x01\x02garbage without separator\n= 12\nFR = 33:00:EF:0F::France:P\n") +
                  std::string(100000, 'x') + " = " + std::string(100000, '9') + "\n");
    EXPECT_EQ(config->getCountryNumber("FR"), "33");
}
