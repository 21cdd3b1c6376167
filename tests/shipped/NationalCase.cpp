#include "NationalCase.h"

#include "TestHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

using numbering::KesDialRulesItem;
using numbering::KesNumberingRules;

namespace shipped {

namespace {

const char* const PLAN_CODES[] = {"1",  "7",  "31", "32", "33", "41", "43", "44",
                                  "49", "52", "54", "57", "61", "64", "353"};

std::string withoutBlanks(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
    return text;
}

bool digitsAt(const std::string& text, std::size_t& pos) {
    std::size_t start = pos;
    while (pos < text.size() && std::isdigit(static_cast<unsigned char>(text[pos])))
        ++pos;
    return pos > start;
}

/// "+cc (digits) " followed by a digit; the mask may group the subscriber digits after that.
bool hasAreaLayout(const std::string& canonical, const std::string& callingCode) {
    std::string head = "+" + callingCode + " (";
    if (canonical.compare(0, head.size(), head) != 0)
        return false;
    std::size_t pos = head.size();
    if (!digitsAt(canonical, pos) || canonical.compare(pos, 2, ") ") != 0)
        return false;
    pos += 2;
    return digitsAt(canonical, pos);
}

std::string lastError() {
    const std::vector<std::string>& lines = testhost::lines();
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (line->compare(0, 6, "ERROR ") == 0)
            return *line;
    return std::string();
}

} // namespace

bool hasPlan(const std::string& callingCode) {
    return std::find(std::begin(PLAN_CODES), std::end(PLAN_CODES), callingCode) != std::end(PLAN_CODES);
}

NationalCase nationalCase(const CountryExamples& examples, Kind kind, const std::string& extPrefix,
                          const std::string& ownArea, const char* typedPrefix) {
    const std::string& nsn = kind == Kind::Fixed ? examples.fixed : examples.mobile;
    std::string prefix = typedPrefix != nullptr ? typedPrefix : examples.nationalPrefix;
    // Without a trunk prefix and without a plan there is neither an area code nor a national prefix
    // to put in the parentheses: the generic rules write "+cc number".
    bool areaLayout = !examples.nationalPrefix.empty() || hasPlan(examples.callingCode);
    return {examples.iso2, kind, extPrefix, ownArea, prefix + nsn, examples.callingCode, nsn, areaLayout};
}

std::string name(const NationalCase& c) {
    return c.country + (c.kind == Kind::Fixed ? "_fixed" : "_mobile");
}

std::ostream& operator<<(std::ostream& out, const NationalCase& c) {
    return out << c.country << (c.kind == Kind::Fixed ? " fixed" : " mobile") << " number typed '" << c.typed
               << "' (outside-line prefix '" << c.extPrefix << "', own area '" << c.ownArea << "')";
}

void expectInternationalNumber(const NationalCase& c) {
    ASSERT_FALSE(c.nsn.empty()) << c << ": no example number";
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem installation(c.country, c.extPrefix, 0, c.ownArea, 0, "");
    int errors = testhost::countLogged("ERROR ");

    std::string canonical = rules->makeCanonicalNumber(&installation, c.typed, "");
    if (c.areaLayout) {
        EXPECT_TRUE(hasAreaLayout(canonical, c.callingCode)) << c << " gave '" << canonical << "'";
    } else {
        EXPECT_EQ(canonical, "+" + c.callingCode + " " + c.nsn) << c;
    }

    std::string gsm = rules->makeGSMCanonicalNumber(&installation, c.typed, false);
    EXPECT_EQ(withoutBlanks(gsm), "+" + c.callingCode + c.nsn) << c << " gave '" << gsm << "'";

    // The generic form "+cc number" is read back as "+cc (number) ", which leaves nothing to dial:
    // only the parenthesised layout makes the round trip.
    if (c.areaLayout) {
        EXPECT_EQ(rules->makePhoneNumber(&installation, canonical), c.extPrefix + c.typed)
            << c << " dialling '" << canonical << "'";
    }

    EXPECT_EQ(testhost::countLogged("ERROR "), errors) << c << " logged " << lastError();
}

} // namespace shipped
