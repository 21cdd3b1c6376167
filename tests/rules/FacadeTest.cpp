#include "FacadeWorld.h"

#include "numbering/KesExplanation.h"

#include <functional>

using Facade = facadeworld::FacadeTest;

TEST_F(Facade, CountryLookUpsPassThroughTheStore) {
    std::vector<std::string> names = facade->getCountryList();
    ASSERT_EQ(names.size(), 11u);
    EXPECT_EQ(names.front() + "|" + names.back(), "Belarus|Sweden");
    EXPECT_EQ(facade->getCountryCode("Sweden") + facade->getCountryName("SE") +
                  facade->getCountryCodeFromNumber("46"),
              "SESwedenSE");
    EXPECT_EQ(facade->getCountryCode("Atlantis") + facade->getCountryCodeFromNumber("4"), "");
}

// A reset drops every cache with the facade, so that the next use reads the files again.
TEST_F(Facade, ResetRereadsTheFiles) {
    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Konungariket Sverige:P\n");
    {
        testhost::Tracing tracing;
        KesNumberingRules::resetInstance();
        EXPECT_EQ(testhost::lines().front(), "DEBUG N9numbering17KesNumberingRulesE - Releasing resources");
    }
    EXPECT_EQ(KesNumberingRules::instance, nullptr);
    EXPECT_EQ(KesNumberingConfig::instance, nullptr);
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade->getCountryName("SE"), "Konungariket Sverige");
}

// The shortest form that tells the caller apart, and where the call comes from.
TEST_F(Facade, CallerLineIdentities) {
    KesDialRulesItem stockholm = facadeworld::stockholm(5), minsk("BY", "0", 0, "17", 0, "");
    struct Case {
        KesDialRulesItem* rules;
        const char *calling, *number;
        const KesEnumOrigin* origin;
    } const cases[] = {
        {&stockholm, "+46 8 123 456 78", "12345678", &KesEnumOrigin::PUBLIC_1}, // the own area
        {&stockholm, "+46 31 123 456", "31123456", &KesEnumOrigin::NATIONAL},
        // The national prefix in the parentheses, in place of an area code.
        {&stockholm, "08 123 456 78", "812345678", &KesEnumOrigin::NATIONAL},
        {&stockholm, "+39 06 1234", "39061234", &KesEnumOrigin::INTERNATIONAL},
        // Abroad, with a national prefix equal to the installation's own: left out ...
        {&stockholm, "+48 (0) 22 123 45 67", "48221234567", &KesEnumOrigin::INTERNATIONAL},
        // ... the installation's, not the calling country's: Belarus writes "8".
        {&minsk, "+48 (0) 22 123 45 67", "480221234567", &KesEnumOrigin::INTERNATIONAL},
        {&minsk, "+46 (8) 123", "46123", &KesEnumOrigin::INTERNATIONAL},
        // Not canonical: a local number and a service code.
        {&stockholm, "1234", "1234", &KesEnumOrigin::PRIVATE_1},
        {&stockholm, "*21#", "*21#", &KesEnumOrigin::PRIVATE_1},
    };
    for (const Case& c : cases) {
        Poco::AutoPtr<KesClid> clid(facade->makeClid(c.rules, c.calling));
        ASSERT_FALSE(clid.isNull()) << c.calling;
        EXPECT_EQ(clid->getNumber(), c.number) << c.calling;
        EXPECT_EQ(clid->getOrigin(), c.origin) << c.calling << " is " << clid->getOrigin()->name;
    }
    const int before = KesClid::_count;
    EXPECT_EQ(facade->makeClid(&stockholm, "0123x"), nullptr);
    EXPECT_EQ(KesClid::_count, before);
}

// Every conversion, and its explanation, refuses null installation rules and an empty number with
// the same two messages.
TEST_F(Facade, MissingArgumentsOfEveryConversion) {
    KesDialRulesItem rules = facadeworld::stockholm();
    const std::function<void(KesDialRulesItem*, const std::string&)> conversions[] = {
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeCanonicalNumber(r, n, "", true); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeGSMCanonicalNumber(r, n, false); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makePhoneNumber(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->addExternalPrefix(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { Poco::AutoPtr<KesClid>(facade->makeClid(r, n)); },
        [&](KesDialRulesItem* r, const std::string& n) { KesExplanation::of(r, n); },
    };
    for (const auto& convert : conversions) {
        EXPECT_EQ(testhost::thrownText<std::invalid_argument>([&] { convert(nullptr, ""); }),
                  "'myKesDialRulesItem' parameter can not be null");
        EXPECT_EQ(testhost::thrownText<std::invalid_argument>([&] { convert(&rules, ""); }),
                  "'strPhoneNumber' parameter can not be null");
    }
}

// Whatever a number from outside holds, every line the sink receives stays one log line without
// terminal controls (but the library's own break before "DialRules:"), and none is debug text while
// tracing is off.
class OddInputs : public facadeworld::FacadeTest {
protected:
    void convertAll(const std::string& number) {
        for (KesDialRulesItem* rules : {&paris, &stockholm}) {
            testhost::everyConversion(rules, number);
            facade->makeDialableNumber(rules, number);
            facade->isPrefixNeeded(rules, number);
        }
        facade->getCountryCode(number);
        facade->getCountryName(number);
        facade->getCountryCodeFromNumber(number);
        facade->generateDefaultCanonicalNumber(number, "33", "1\n");
        facade->formatCanonicalNumber(number, "");
        facade->formatCanonicalNumber("+33 (1) 23456789", number);
        facade->extractCountryNumberFromCanonicalNumber(number);
        facade->extractAreaCodeOrNatPrefixFromCanonicalNumber(number);
        facade->extractExtensionFromCanonicalNumber(number);
        facade->formatToGSMCanonicalNumber(number);
    }

    void SetUp() override {
        FacadeTest::SetUp();
        paris = facadeworld::paris(5, "1\n2"); // checked against the rules just loaded
        stockholm = facadeworld::stockholm(4, "1");
    }

    KesDialRulesItem paris, stockholm;
};

namespace {

// Canonical, national and service-code shapes, so that the conversions go deep before failing.
const std::vector<std::string> FORGING_NUMBERS = {
    "12\nERROR N9numbering17KesNumberingRulesE - forged",
    "+33 (1) 2345\r\nINFO forged",
    "\x1b[2J\x1b[31m0123456789",
    "+49 (89) 123\x1b]0;title\x07"
    "456",
    "*12#\n",
};

} // namespace

TEST_F(OddInputs, EveryMessageIsOneLogLine) {
    testhost::Tracing tracing;
    for (const std::string& number : FORGING_NUMBERS)
        convertAll(number);
    ASSERT_FALSE(testhost::lines().empty());
    for (const std::string& line : testhost::lines()) {
        std::string::size_type lineBreak = line.find('\n');
        EXPECT_TRUE(lineBreak == std::string::npos ||
                    line.compare(lineBreak, 29, "\n  DialRules: CountryCode : '") == 0)
            << line;
        for (std::string::size_type i = 0; i < line.size(); ++i)
            EXPECT_TRUE(i == lineBreak || (static_cast<unsigned char>(line[i]) >= 0x20 && line[i] != '\x7f'))
                << "control " << int(line[i]) << " in: " << line;
    }
    // The forged text is there to read, escaped.
    EXPECT_TRUE(testhost::logged("PhoneNumber: '12\\nERROR N9numbering17KesNumberingRulesE - forged'"));
    EXPECT_TRUE(testhost::logged("\\x1b[2J\\x1b[31m0123456789"));
    EXPECT_TRUE(testhost::logged("Except begin : '1\\n2'"));
}

TEST_F(OddInputs, NoDebugTextWhileTracingIsOff) {
    testhost::Tracing off(false);
    for (const char* number : {"08 123 456 78", "+39 06 1234", "1234", "0123x"})
        convertAll(number);
    EXPECT_EQ(testhost::countLogged("DEBUG "), 0);
    EXPECT_GT(testhost::countLogged("ERROR "), 0) << "errors are written all the same";
}
