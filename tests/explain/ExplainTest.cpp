// The decisions KesExplanation records for a number of each kind, on the shipped configuration.

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesExplanation.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

using namespace numbering;
using E = KesExplanation;

namespace {

struct Case {
    const char* installation; // country, outside-line prefix, own area code
    int localLength;
    const char *exceptBegin, *number;
    // Kind, destination country ("-": none), plan, area code, route, outside line, prefix added.
    const char* decisions;
};

const Case CASES[] = {
    {"FR 0 1", 4, "", "0123456789", "National FR CountryPlan PlanRule LongDistance Needed +"},
    {"FR 0 1", 4, "", "123", "Extension FR LeftAlone NotSought None InternalExtension -"},
    {"FR 0 1", 0, "", "0049 89 1234567", "International DE CountryPlan Found International Needed +"},
    {"DE 0 89", 0, "", "123456", "Local DE CountryPlan OwnAreaCode Local Needed +"},
    {"DE 0 89", 0, "11", "112", "Extension DE LeftAlone NotSought None ExceptionNumber -"},
    {"DE 0 89", 0, "11", "0112", "National DE CountryPlan OwnAreaCode Local DialledWithPrefix +"},
    {"IT 0 06", 0, "", "06 12345678", "NationalAsLocal IT NoPlanForCountry NotSought LongDistance Needed +"},
    {"FR 0 1", 0, "", "+39 06 12345678",
     "InternationalForm IT NoPlanForCountry AsWritten International Needed +"},
    {"FR 0 1", 0, "", "*12#", "ServiceCode - NotReached NotSought None ServiceCode -"},
    {"FR", 0, "", "+33 1 23 45 67 89", "InternationalForm FR CountryPlan PlanRule LongDistance NoPrefix -"},
};

KesDialRulesItem installationOf(const Case& c) {
    char country[3] = {}, ext[8] = {}, area[8] = {};
    std::sscanf(c.installation, "%2s %7s %7s", country, ext, area);
    return KesDialRulesItem(country, ext, c.localLength, area, 0, c.exceptBegin);
}

} // namespace

TEST(Explanation, RecordsTheDecisionsOfEachKindOfNumber) {
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    for (const Case& c : CASES) {
        SCOPED_TRACE(std::string(c.installation) + ": " + c.number);
        KesDialRulesItem installation = installationOf(c);
        const E e = E::of(&installation, c.number);
        const std::string country = e.destinationCountry.empty() ? "-" : e.destinationCountry;
        EXPECT_EQ(std::string(E::name(e.kind)) + " " + country + " " + E::name(e.plan) + " " +
                      E::name(e.areaCodeFound) + " " + E::name(e.route) + " " + E::name(e.outsideLine) +
                      (e.outsideLinePrefixAdded ? " +" : " -"),
                  c.decisions);
        // The results are the conversions' own.
        EXPECT_EQ(e.canonical, rules->makeCanonicalNumber(&installation, c.number, ""));
        EXPECT_EQ(e.phoneNumber, rules->makePhoneNumber(&installation, c.number));
        EXPECT_EQ(e.gsm, rules->makeGSMCanonicalNumber(&installation, c.number, false));
    }
}

TEST(Explanation, NamesTheInstallationRowPlanAndNotes) {
    KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
    const E german = E::of(&paris, "+49 (89) 1234567");
    EXPECT_EQ(german.callingCode, "33");
    EXPECT_EQ(german.planCallingCode, "49");
    EXPECT_EQ(german.areaCode, "89");
    EXPECT_EQ(german.mask, E::Mask::Country);
    EXPECT_EQ(german.clidOrigin, "International");
    EXPECT_TRUE(german.notes.empty());
    EXPECT_EQ(E::of(&paris, "+54 9 (11) 41234567").notes, std::vector<E::Note>{E::Note::ArgentineMobile});
    KesDialRulesItem bogota("CO", "0", 0, "1", 0, "");
    EXPECT_EQ(E::of(&bogota, "+49 (89) 123456").notes, std::vector<E::Note>{E::Note::ColombianCarrier});
    KesDialRulesItem munich("DE", "0", 0, "89", 0, "");
    EXPECT_EQ(E::of(&munich, "112").notes, std::vector<E::Note>{E::Note::ShortNumberInArea});
    KesDialRulesItem rome("IT", "0", 0, "06", 0, "");
    EXPECT_EQ(E::of(&rome, "06 12345678").notes, std::vector<E::Note>{E::Note::ItalianGsmBlank});
}
