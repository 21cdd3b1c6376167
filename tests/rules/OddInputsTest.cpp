// Numbers come from outside (a calling number from a trunk, what a user typed). Whatever they hold,
// every line the sink receives stays one log line with no terminal control in it (the line break
// before "DialRules:" is the library's own and the only one), and no debug text is written while
// tracing is off. (The conversion fuzzer sees that no input fails the host.)
#include "FacadeWorld.h"

#include "numbering/KesClid.h"

#include <Poco/AutoPtr.h>

#include <string>
#include <vector>

using namespace numbering;

namespace {

class OddInputs : public facadeworld::FacadeTest {
protected:
    void convertAll(const std::string& number) {
        for (KesDialRulesItem* rules : {&paris, &stockholm}) {
            facade->makeCanonicalNumber(rules, number, "");
            facade->makeCanonicalNumber(rules, number, "+C (A) x\n", true);
            facade->makeGSMCanonicalNumber(rules, number, true);
            facade->makePhoneNumber(rules, number);
            facade->addExternalPrefix(rules, number);
            facade->makeDialableNumber(rules, number);
            facade->isPrefixNeeded(rules, number);
            Poco::AutoPtr<KesClid> clid(facade->makeClid(rules, number));
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

// Canonical, national and service-code shapes, so that the conversions go deep before failing.
const std::vector<std::string> FORGING_NUMBERS = {
    "12\nERROR N9numbering17KesNumberingRulesE - forged",
    "+33 (1) 2345\r\nINFO forged",
    "\x1b[2J\x1b[31m0123456789",
    "+49 (89) 123\x1b]0;title\x07"
    "456",
    "*12#\n",
};

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '\x7f';
}

TEST_F(OddInputs, EveryMessageIsOneLogLine) {
    testhost::Tracing tracing;
    for (const std::string& number : FORGING_NUMBERS)
        convertAll(number);
    ASSERT_FALSE(testhost::lines().empty());
    for (const std::string& line : testhost::lines()) {
        std::string::size_type lineBreak = line.find('\n');
        if (lineBreak != std::string::npos) {
            EXPECT_EQ(line.compare(lineBreak, 29, "\n  DialRules: CountryCode : '"), 0) << line;
        }
        for (std::string::size_type i = 0; i < line.size(); ++i)
            EXPECT_TRUE(i == lineBreak || !isControl(line[i]))
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

} // namespace
