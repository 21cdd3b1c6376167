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
    E::Kind kind;
    const char* country; // the country the number belongs to
    E::Plan plan;
    E::AreaCode areaCodeFound;
    E::Route route;
    E::OutsideLine outsideLine;
    bool prefixAdded;
};

const Case CASES[] = {
    {"FR 0 1", 4, "", "0123456789", E::Kind::National, "FR", E::Plan::CountryPlan, E::AreaCode::PlanRule,
     E::Route::LongDistance, E::OutsideLine::Needed, true},
    {"FR 0 1", 4, "", "123", E::Kind::Extension, "FR", E::Plan::LeftAlone, E::AreaCode::NotSought,
     E::Route::None, E::OutsideLine::InternalExtension, false},
    {"FR 0 1", 0, "", "0049 89 1234567", E::Kind::International, "DE", E::Plan::CountryPlan,
     E::AreaCode::Found, E::Route::International, E::OutsideLine::Needed, true},
    {"DE 0 89", 0, "", "123456", E::Kind::Local, "DE", E::Plan::CountryPlan, E::AreaCode::OwnAreaCode,
     E::Route::Local, E::OutsideLine::Needed, true},
    {"DE 0 89", 0, "", "030 1234567", E::Kind::National, "DE", E::Plan::CountryPlan, E::AreaCode::Found,
     E::Route::LongDistance, E::OutsideLine::Needed, true},
    {"DE 0 89", 0, "11", "112", E::Kind::Extension, "DE", E::Plan::LeftAlone, E::AreaCode::NotSought,
     E::Route::None, E::OutsideLine::ExceptionNumber, false},
    {"DE 0 89", 0, "11", "0112", E::Kind::National, "DE", E::Plan::CountryPlan, E::AreaCode::OwnAreaCode,
     E::Route::Local, E::OutsideLine::DialledWithPrefix, true},
    {"IT 0 06", 0, "", "06 12345678", E::Kind::NationalAsLocal, "IT", E::Plan::NoPlanForCountry,
     E::AreaCode::NotSought, E::Route::LongDistance, E::OutsideLine::Needed, true},
    {"FR 0 1", 0, "", "+39 06 12345678", E::Kind::InternationalForm, "IT", E::Plan::NoPlanForCountry,
     E::AreaCode::AsWritten, E::Route::International, E::OutsideLine::Needed, true},
    {"FR 0 1", 0, "", "*12#", E::Kind::ServiceCode, "", E::Plan::NotReached, E::AreaCode::NotSought,
     E::Route::None, E::OutsideLine::ServiceCode, false},
    {"FR", 0, "", "+33 1 23 45 67 89", E::Kind::InternationalForm, "FR", E::Plan::CountryPlan,
     E::AreaCode::PlanRule, E::Route::LongDistance, E::OutsideLine::NoPrefix, false},
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
        EXPECT_EQ(e.kind, c.kind);
        EXPECT_EQ(e.destinationCountry, c.country);
        EXPECT_EQ(e.plan, c.plan);
        EXPECT_EQ(e.areaCodeFound, c.areaCodeFound);
        EXPECT_EQ(e.route, c.route);
        EXPECT_EQ(e.outsideLine, c.outsideLine);
        EXPECT_EQ(e.outsideLinePrefixAdded, c.prefixAdded);
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
