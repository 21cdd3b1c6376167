#include "Suite.h"

namespace {

class NumberingConfig : public ::testing::Test {
protected:
    void SetUp() override { testconfig::clearAll(); }
    void TearDown() override { testconfig::reload(); }

    KesNumberingConfig* load(const std::string& dialingRules) {
        testconfig::reloadWith("dialingrules.properties", dialingRules);
        return KesNumberingConfig::getInstance();
    }
    KesNumberingConfig* load(const std::string& masks, const std::string& switches) {
        testconfig::write("dlr_cnp_mask.properties", masks);
        testconfig::write("specific_format_activation.properties", switches);
        return load("FR = 33:00:EF:0F::France:P\nDE = 49:00:EF:0F::Germany:P\n");
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
    EXPECT_EQ(config->getCountryRule("FR")->getLongDistPrefix(), "0");
    EXPECT_EQ(config->getCountryCodeFromNumber("11"), "") << "not primary";
    EXPECT_EQ(config->extractCountryNumber("11234"), "");
    EXPECT_EQ(config->getCountryNumber("AA"), "11");
    EXPECT_EQ(config->getCountryRule("AA")->getLocalRule(), "G");
    EXPECT_EQ(config->getCountryRule("BB")->getInternatRule(), "");
    EXPECT_EQ(config->getCountryCodeFromNumber("35"), "CC");
    EXPECT_EQ(config->getCountryRule("DD")->getInternatPfx(), "");
    EXPECT_EQ(config->getCountryRule("DD")->getInternatRule(), "EF");
}

// The first key of a calling code or name wins; names list byte-wise; the shortest code wins.
TEST_F(NumberingConfig, LookUps) {
    KesNumberingConfig* config = load("CA = 1:011:EF:1F::North America:P\n"
                                      "US = 1:011:EF:1F::North America:P\n"
                                      "AX = 358:00:EF:0F::aland:\n"
                                      "AG = 1268:011:EF:1F::Antigua:P\n"
                                      "XA = 9999:00:EF:0F::Four:P\n"
                                      "XB = 99999:00:EF:0F::Five:P\n"
                                      "fra = 96:00:EF:0F::Lower:P\n"
                                      "F = 95:00:EF:0F::One:P\n");
    EXPECT_EQ(config->getCountryCodeFromNumber("1"), "CA");
    EXPECT_EQ(config->getCountryCodeFromName("North America"), "CA");
    EXPECT_TRUE(config->validCountryCode("US"));
    EXPECT_EQ(config->getCountryList(), (std::vector<std::string>{"Antigua", "Five", "Four", "Lower",
                                                                  "North America", "One", "aland"}));
    for (const char* code : {"fra", "F", "", "ca"})
        EXPECT_TRUE(config->getCountryName(code).empty() && !config->validCountryCode(code) &&
                    config->getCountryRule(code) == nullptr)
            << code;
    EXPECT_EQ(config->getCountryCodeFromName("Lower"), "fra");
    EXPECT_EQ(config->getCountryCodeFromNumber(""), "");
    EXPECT_EQ(config->extractCountryNumber("12685551234"), "1");
    EXPECT_EQ(config->extractCountryNumber("99991234"), "9999");
    EXPECT_EQ(config->extractCountryNumber("99999123"), "9999");
    EXPECT_EQ(config->extractCountryNumber("+12685551234"), "") << "a plus is not stripped";
}

// With both present the installation file alone counts: the two are never merged.
TEST_F(NumberingConfig, DefaultFileIsNotReadBesideTheInstallationFile) {
    testconfig::write("dialingrules_default.properties", "DE = 49:00:EF:0F::Germany:P\n");
    KesNumberingConfig* config = load("FR = 33:00:EF:0F::France:P\n");
    EXPECT_EQ(config->getCountryNumber("FR") + "|" + config->getCountryNumber("DE"), "33|");
}

TEST_F(NumberingConfig, NoFileAtAllLeavesAnEmptyStore) {
    testconfig::reload();
    testhost::clear();
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    for (const char* load : {"loadDialingRules", "loadCountryMasks", "loadSpecificFormatActivation"})
        EXPECT_TRUE(testhost::logged("ERROR N9numbering18KesNumberingConfigE - KesNumberingConfig::" +
                                     std::string(load) + " Exception : "));
    EXPECT_TRUE(config->getCountryList().empty());
    EXPECT_EQ(config->getCountryCodeFromNumber("33"), "");
    EXPECT_EQ(config->getDefaultPattern("33"), "");
    EXPECT_FALSE(config->loadDialingRules());
}

// The last value of a key counts, references expanded; a key with a dot ends the loading.
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
}

TEST_F(NumberingConfig, MaskKeys) {
    KesNumberingConfig* config = load("Mask_33_1 = +C (a) xx xx xx xx\n"
                                      "Mask_33_2 = second\n" // the first key of a country wins
                                      "Mask_1234_1 = four\n" // four-character country number
                                      "Mask_49 = no second underscore\n"
                                      "Mask_7_1 =\n" // empty value ignored
                                      "Mask_7_2 = seven\n"
                                      "xMask_3_ = none\n"  // sixth character is "_": empty number
                                      "xxMask_3_1 = odd\n" // cut from the sixth character: "k"
                                      "Other = x\n",
                                      "");
    EXPECT_EQ(config->getDefaultPattern("33"), "+C (a) xx xx xx xx");
    EXPECT_EQ(config->getDefaultPattern("1234") + config->getDefaultPattern("49"), "");
    EXPECT_EQ(config->getDefaultPattern("7"), "seven");
    EXPECT_EQ(config->getDefaultPattern("k"), "odd");
    EXPECT_EQ(config->getDefaultPattern(""), "");
}

// Only the first valid switch counts, filed under 0: every other country number stays active.
TEST_F(NumberingConfig, SwitchesAreFiledUnderZero) {
    const std::pair<const char*, bool> cases[] = {
        {"cnp_33 = OFF\ncnp_49 = on\n", false},
        {"cnp_33 = ON\n", true},
        {"cnp_33 = 1\n", true},
        {"cnp_33 = False\n", false},
        {"cnp_33 = 0\n", false},
        {"cnp_33 = maybe\n", true},
        {"cnp_99 = off\n", true},
        {"cnp_3333 = off\nxcnp_33 = off\ncnp_ = off\n", true},
        {"cnp_33 =\n", true},
    };
    for (const auto& [file, zeroActive] : cases) {
        KesNumberingConfig* config = load("", file);
        EXPECT_EQ(config->isSpecificFormatActiveForCountry("0"), zeroActive) << file;
        EXPECT_EQ(config->isSpecificFormatActiveForCountry("abc"), zeroActive) << file;
        EXPECT_TRUE(config->isSpecificFormatActiveForCountry("33") &&
                    config->isSpecificFormatActiveForCountry("49") &&
                    config->isSpecificFormatActiveForCountry(""));
    }
}
