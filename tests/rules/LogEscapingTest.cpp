// Numbers come from outside (a calling number from a trunk, what a user typed): whatever control
// characters they hold, every line the sink receives stays one log line, with no terminal control
// in it. The line break before "DialRules:" is the library's own and the only one.
#include "FacadeWorld.h"

#include "numbering/KesClid.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;

namespace {

class LogEscaping : public FacadeTest {};

// Canonical, national and service-code shapes, so that the conversions go deep before failing.
const std::vector<std::string> FORGING_NUMBERS = {
    "12\nERROR N9numbering17KesNumberingRulesE - forged",
    "+33 (1) 2345\r\nINFO forged",
    "\x1b[2J\x1b[31m0123456789",
    "+49 (89) 123\x1b]0;title\x07"
    "456",
    "01 23\t45 67 89\x7f",
    "*12#\n",
    "+\n",
    "0046 8 123\x08\x08\x08"
    "999",
};

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '\x7f';
}

// A line may hold one line break, before the installation's dialing rules; no other control character.
void expectOneLineEach(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        std::string::size_type lineBreak = line.find('\n');
        std::string head = line.substr(0, lineBreak);
        std::string tail = lineBreak == std::string::npos ? "" : line.substr(lineBreak + 1);
        if (lineBreak != std::string::npos) {
            EXPECT_EQ(tail.rfind("  DialRules: CountryCode : ", 0), 0u) << line;
        }
        for (const std::string& part : {head, tail}) {
            for (char c : part) {
                EXPECT_FALSE(isControl(c)) << "control character " << int(c) << " in: " << line;
            }
        }
    }
}

TEST_F(LogEscaping, EveryPublicConversionLogsOneLinePerMessage) {
    KesDialRulesItem paris = facadeworld::paris(5, "1\n2");
    KesDialRulesItem stockholm = facadeworld::stockholm();
    testhost::Tracing tracing;
    for (const std::string& number : FORGING_NUMBERS) {
        for (KesDialRulesItem* rules : {&paris, &stockholm}) {
            facade->makeCanonicalNumber(rules, number, "");
            facade->makeCanonicalNumber(rules, number, "+C (A) x\n", true);
            facade->makeGSMCanonicalNumber(rules, number, true);
            facade->makePhoneNumber(rules, number);
            facade->addExternalPrefix(rules, number);
            facade->makeDialableNumber(rules, number);
            facade->isPrefixNeeded(rules, number);
            if (KesClid* clid = facade->makeClid(rules, number))
                clid->release();
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
    ASSERT_FALSE(testhost::lines().empty());
    expectOneLineEach(testhost::lines());
    // The forged text is there to read, escaped.
    EXPECT_TRUE(testhost::logged("PhoneNumber: '12\\nERROR N9numbering17KesNumberingRulesE - forged'"));
    EXPECT_TRUE(testhost::logged("\\x1b[2J\\x1b[31m0123456789"));
    EXPECT_TRUE(testhost::logged("Except begin : '1\\n2'"));
}

} // namespace
