// Canonical conversions of every plan, around each plan's lengths and prefixes, in the shared world
// of PlanWorld.h.

#include "PlanWorld.h"

#include "numbering/KesDialable.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <regex>
#include <string>

using namespace numbering;
using namespace planworld;

namespace {

/// The conversions of one plan at one installation: "typed -> expected", or the typed number alone
/// when the plan must return it unchanged.
struct Group {
    Site site;
    std::initializer_list<const char*> rows;
};

const Group TABLE[] = {
    // Germany: pass 2 strips the outside-line prefix when at most 16 characters follow it; an unknown
    // area code, and a national number too short to split, end behind the own area code.
    {{"DE", "0", 5, "89"},
     {"0301234567 -> +49 (30) 1234567", "00301234567 -> +49 (30) 1234567", "1234567 -> +49 (89) 1234567",
      "0451234567 -> +49 (89) 451234567", "030 -> +49 (89) 030", "0123 -> +49 (89) 123",
      "030123 -> +49 (30) 123", "03012 -> +49 (89) 3012", "12", "",
      "00301234567890123 -> +49 (30) 1234567890123", "003012345678901234 -> +49 (89) 003012345678901234"}},
    {{"DE", "9", 5, "89"},
     {"90301234567 -> +49 (30) 1234567", "91234567 -> +49 (89) 1234567", "9001234",
      "0301234567 -> +49 (30) 1234567", "912 -> +49 (89) 912"}},
    {{"DE", "0", 5, ""}, {"0451234567 -> +49 () 451234567", "1234567"}},
    // Austria takes four digits where the area code is unknown.
    {{"AT", "0", 4, "1"},
     {"0316123456 -> +43 (316) 123456", "0512345678 -> +43 (5123) 45678", "0512345 -> +43 (1) 512345",
      "0316123 -> +43 (316) 123", "27722 -> +43 (1) 27722", "00316123456 -> +43 (316) 123456"}},
    // Switzerland: nine or ten characters, directly or behind the outside-line prefix.
    {{"CH", "0", 0, ""},
     {"", "12345678", "01234567", "011234567 -> +41 (1) 1234567", "021234567",
      "0441234567 -> +41 (44) 1234567", "0800123456 -> +41 800123456", "4412345678",
      "00441234567 -> +41 (44) 1234567", "10441234567", "000441234567", "00800123456 -> +41 800123456"}},
    {{"CH", "99", 0, ""},
     {"99011234567 -> +41 (1) 1234567", "990441234567 -> +41 (44) 1234567", "9941234567", "9900441234567",
      "99021234567"}},
    {{"CH", "999", 0, ""}, {"99901234567", "999011234567 -> +41 (1) 1234567"}},
    {{"CH", "", 0, ""}, {"00441234567", "0441234567 -> +41 (44) 1234567"}},
    // France around its national length of ten; what already carries the prefix is not completed.
    {{"FR", "0", 0, ""},
     {"12345", "12345678", "123456789 -> +33 (0) 123456789", "012345678", "0123456789 -> +33 (0) 123456789",
      "1234567890 -> +33 (1) 234567890", "00123456789 -> +33 (0) 123456789", "10123456789", "000123456789"}},
    {{"FR", "0", 10, ""}, {"123456789", "0123456789 -> +33 (0) 123456789"}},
    // Russia around eleven: length alone decides.
    {{"RU", "0", 0, ""},
     {"495123456", "4951234567 -> +7 (495) 1234567", "8495123456 -> +7 (849) 5123456",
      "84951234567 -> +7 (495) 1234567", "94951234567 -> +7 (495) 1234567",
      "084951234567 -> +7 (495) 1234567", "184951234567", "0084951234567"}},
    {{"RU", "0", 0, "", "49"}, {"4951234567", "3951234567 -> +7 (395) 1234567"}},
    // North America: the outside-line prefix plays no part; area and exchange codes never begin
    // with 0 or 1.
    {{"US", "9", 0, "212"},
     {"555123", "5551234 -> +1 (212) 5551234", "1551234", "0551234", "15551234 -> +1 (212) 5551234",
      "05551234 -> +1 (212) 5551234", "95551234", "11551234", "555123456"}},
    {{"US", "", 0, "212"},
     {"4155551234 -> +1 (415) 5551234", "4151551234", "4150551234", "1155551234", "0155551234",
      "14155551234 -> +1 (415) 5551234", "04155551234 -> +1 (415) 5551234", "24155551234", "14151551234",
      "114155551234"}},
    {{"US", "", 0, ""}, {"5551234 -> +1 (?) 5551234", "15551234 -> +1 (?) 5551234"}},
    // The single-pass plans: from six (Netherlands, United Kingdom), nine (Belgium) or five (Ireland)
    // characters, each with its own local rule.
    {{"NL", "0", 0, "20"},
     {"0201234567 -> +31 (20) 1234567", "0591234567 -> +31 (0) 591234567", "1234567 -> +31 (20) 1234567",
      "020", "02012", "020123 -> +31 (20) 123", "0031201234567 -> +31 (0) 031201234567"}},
    {{"BE", "0", 0, "2"},
     {"12345678", "123456789", "02123456", "021234567 -> +32 (2) 1234567",
      "0501234567 -> +32 (0) 501234567"}},
    {{"GB", "9", 0, "20"},
     {"71234567 -> +44 (20) 71234567", "212345 -> +44 (20) 212345", "1234567", "12345",
      "01611234567 -> +44 (161) 1234567", "0123456 -> +44 (0) 123456"}},
    {{"IE", "0", 0, "1"},
     {"011234567 -> +353 (1) 1234567", "0911234567 -> +353 (91) 1234567", "0123", "01234 -> +353 (1) 234",
      "1234567 -> +353 (1) 1234567"}},
    {{"IE", "0", 0, ""}, {"1234567"}},
    // Australia decides by exact length.
    {{"AU", "0", 0, "2"},
     {"0212345678 -> +61 (2) 12345678", "0512345678 -> +61 (0) 512345678", "1300123456 -> +61 1300 123456",
      "1800123456 -> +61 1800 123456", "131234 -> +61 13 1234", "141234", "1312345", "13001234567",
      "12345678 -> +61 (2) 12345678", "1900123456", "00212345678", "021234567", ""}},
    {{"AU", "0", 0, ""}, {"12345678", "1300123456 -> +61 1300 123456"}},
    // Colombia by length; the carrier digits are dropped.
    {{"CO", "0", 0, "1"},
     {"123456", "1234567 -> +57 (1) 1234567", "12345678", "012345678", "0511234567 -> +57 (1) 1234567",
      "5511234567", "0330012345 -> +57 (300) 12345", "04561234567 -> +57 (1) 234567",
      "045611234567 -> +57 (1) 1234567", "033001234567 -> +57 (300) 1234567",
      "0456812345678 -> +57 (8) 12345678"}},
    {{"CO", "0", 0, ""}, {"1234567 -> +57 () 1234567"}},
    // Mexico: ten national digits with or without their prefixes; the plan file's codes come before
    // the two-digit rule.
    {{"MX", "0", 0, "55"},
     {"5512345678 -> +52 (55) 12345678", "5612345678 -> +52 (56) 12345678", "3312345678 -> +52 (33) 12345678",
      "8112345678 -> +52 (81) 12345678", "2221234567 -> +52 (222) 1234567", "2222123456 -> +52 (2222) 123456",
      "015512345678 -> +52 (55) 12345678", "012221234567 -> +52 (222) 1234567",
      "0445512345678 -> +52 (155) 12345678", "0452221234567 -> +52 (1222) 1234567",
      "0115512345678 -> +52 (155) 12345678", "15512345678 -> +52 (155) 12345678",
      "05512345678 -> +52 (55) 12345678", "0015512345678 -> +52 (55) 12345678", "12345678",
      "22345678 -> +52 (55) 22345678"}},
    {{"MX", "9", 0, "55"},
     {"1512345678", "0123456789", "551234567", "55123456789", "044551234567", "0465512345678", "011234567",
      "55-1234-5678", "1234567", "", "9"}},
    {{"MX", "0", 0, "222"}, {"2345678 -> +52 (222) 2345678", "22345678"}},
    {{"MX", "0", 0, ""}, {"2345678"}},
    // Argentina: the mobile markers 15 (behind the area code) and 9 (in front of it).
    {{"AR", "0", 0, "11"},
     {"43215678 -> +54 (11) 43215678", "4321567 -> +54 (11) 4321567", "01143215678 -> +54 (11) 43215678",
      "0111543215678 -> +54 9 (11) 43215678", "91143215678 -> +54 9 (11) 43215678",
      "1543215678 -> +54 9 (11) 43215678", "03514321567 -> +54 (351) 4321567",
      "0351154321567 -> +54 9 (351) 4321567", "0221432156 -> +54 (11) 221432156", "12345 -> +54 (11) 12345",
      "9999999999", "011154321567890 -> +54 9 (11) 4321567890", "0123456789012345", "09221432156"}},
    // New Zealand: one-digit areas, mobiles of six to eight digits behind their prefix, services.
    {{"NZ", "", 0, ""},
     {"031234567 -> +64 (3) 1234567", "041234567 -> +64 (4) 1234567", "061234567 -> +64 (6) 1234567",
      "071234567 -> +64 (7) 1234567", "091234567 -> +64 (9) 1234567", "051234567", "081234567", "01234567",
      "03123456", "0312345678"}},
    {{"NZ", "", 0, ""},
     {"02112345", "021123456 -> +64 (21) 123456", "0211234567 -> +64 (21) 1234567",
      "02112345678 -> +64 (21) 12345678", "021123456789", "0201234567 -> +64 (20) 1234567",
      "0271234567 -> +64 (27) 1234567", "0291234567 -> +64 (29) 1234567", "0231234567", "0251234567",
      "024012345 -> +64 (240) 12345", "0240123456"}},
    {{"NZ", "", 0, ""},
     {"080012345", "0800123456 -> +64 (800) 123456", "08001234567 -> +64 (800) 1234567", "080012345678",
      "050812345", "0508123456 -> +64 (508) 123456", "05081234567", "09001234",
      "090012345 -> +64 (900) 12345", "0900123456"}},
    {{"NZ", "", 0, "9"},
     {"3456789 -> +64 (9) 3456789", "1234567", "0234567", "345678", "34567890", "", "09*234567", "345678#",
      "+6491234567"}},
    {{"NZ", "", 0, "09"}, {"3456789 -> +64 (9) 3456789"}},
    {{"NZ", "", 0, "3"}, {"2345678 -> +64 (3) 2345678"}},
    {{"NZ", "", 0, ""}, {"3456789"}},
    {{"NZ", "", 0, "21"}, {"3456789"}},
    {{"NZ", "", 0, "5"}, {"3456789"}},
    {{"NZ", "", 0, "0"}, {"3456789"}},
    {{"NZ", "1", 0, "4"},
     {"1091234567 -> +64 (9) 1234567", "10211234567 -> +64 (21) 1234567", "10800123456 -> +64 (800) 123456",
      "13456789 -> +64 (4) 3456789", "1051234567", "1", "2091234567"}},
    // With "0" as outside-line prefix the national number itself is tried first.
    {{"NZ", "0", 0, "4"},
     {"090012345 -> +64 (900) 12345", "0091234567 -> +64 (9) 1234567", "03456789 -> +64 (4) 3456789"}},
};

using Conversions = PlanTest;

} // namespace

TEST_F(Conversions, EveryPlanAroundItsLengthsAndPrefixes) {
    for (const Group& group : TABLE) {
        for (const std::string row : group.rows) {
            const std::size_t arrow = row.find(" -> ");
            const std::string typed = row.substr(0, arrow);
            EXPECT_EQ(group.site.convert(typed), arrow == std::string::npos ? row : row.substr(arrow + 4))
                << group.site << ": '" << typed << "'";
        }
    }
}

// The two-pass plans leave to pass 2 a national number shorter than their longest area code, not
// one as long.
TEST_F(Conversions, NationalNumbersShorterThanTheLongestAreaCodeWaitForPass2) {
    const Site site{"DE", "9", 5, "89"};
    writePlanFile("49", "1", {"30"});
    EXPECT_EQ(site.convert("030123"), "+49 (30) 123");
    writePlanFile("49", "1", {"30", "332031"});
    EXPECT_EQ(site.convert("030123"), "+49 (89) 030123");
    EXPECT_EQ(site.convert("0301234"), "+49 (30) 1234") << "as long as the longest area code";
}

// Plans built before a reload read the store in use; a country missing from it has no national prefix.
TEST_F(Conversions, PlansReadTheStoreInUseAndMissingRowsMeanNoNationalPrefix) {
    KesDialRulesItem argentine("AR", "0", 0, "11", 0, "");
    KesDialRulesItem french; // not validated against the dialing rules
    french.setExtPrefix("0");
    Poco::AutoPtr<KesCNP> argentina = plan("54"), france = plan("33"), russia = plan("7");
    testconfig::write("dialingrules.properties", "DE = 49:00:EF:0F::Germany:P\n");
    testconfig::reload();
    EXPECT_EQ(argentina->dlr_Country_MakeCanonicalNumber("1143215678", &argentine), "+54 (11) 43215678");
    EXPECT_EQ(argentina->dlr_Country_MakeCanonicalNumber("01143215678", &argentine), "+54 (11) 01143215678");
    EXPECT_EQ(france->dlr_Country_MakeCanonicalNumber("123456789", &french), "123456789");
    EXPECT_EQ(russia->dlr_Country_MakeCanonicalNumber("4951234567", &french), "4951234567");
    for (const char* number : {"0123456789", "00123456789"})
        EXPECT_EQ(france->dlr_Country_MakeCanonicalNumber(number, &french), "+33 (0) 123456789");
    for (const char* number : {"84951234567", "084951234567"})
        EXPECT_EQ(russia->dlr_Country_MakeCanonicalNumber(number, &french), "+7 (495) 1234567");
}

// New Zealand's canonical forms dial back to their national digits through the generic strategy
// and its long-distance rule, and from abroad with the country code.
TEST_F(Conversions, NewZealandFormsDialBackToTheirDigits) {
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    KesDialable strategy;
    KesDialRulesItem rules("NZ", "", 0, "", 0, "");
    const std::regex areaAndSubscriber("\\+64 \\((\\d+)\\) (\\d+)");
    for (const char* national : {"031234567", "091234567", "021123456", "0211234567", "02112345678",
                                 "024012345", "0800123456", "08001234567", "0508123456", "090012345"}) {
        std::string canonical = plan("64")->dlr_Country_MakeCanonicalNumber(national, &rules);
        std::smatch parts;
        ASSERT_TRUE(std::regex_match(canonical, parts, areaAndSubscriber)) << canonical;
        std::string area = parts.str(1), subscriber = parts.str(2), country = "64";
        EXPECT_EQ(strategy.makeLongDistDialableNumber(area, subscriber, config->getCountryRule("NZ"), &rules),
                  national);
        EXPECT_EQ(
            strategy.makeInternationalDialableNumber(country, area, subscriber, config->getCountryRule("FR")),
            "0064" + std::string(national + 1));
    }
}
