#include "TestConfig.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

using namespace numbering;

// An installation with the outside-line prefix "0" and internal numbers shorter than five digits,
// in the standard world plus the plan files of Argentina, Australia and Colombia; its display masks
// keep the layout of "+cc (area) number".
TEST(CountryDialing, TypedNumbersDialledThroughEachCountrysStrategy) {
    testconfig::useStandardWorld();
    testconfig::write("tz310cnp_54.properties", "Translate=1\nAC_0000=11\nAC_0001=351\n");
    testconfig::write("tz310cnp_61.properties", "Translate=1\nAC_0000=2\nAC_0001=3\n");
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=7\nOP_0000=7\nOP_0001=9\nOP_0002=456\n");
    struct Case {
        const char *country, *area, *typed, *dialled;
    } const cases[] = {
        {"RU", "812", "+7 (812) 1234567", "01234567"}, // local
        {"RU", "812", "84951234567", "084951234567"},  // national
        {"RU", "812", "4951234567", "084951234567"},   // national without its prefix
        {"RU", "812", "89161234567", "089161234567"},  // mobile
        {"MX", "55", "+52 (55) 12345678", "012345678"},
        {"MX", "55", "+52 (33) 12345678", "0013312345678"},
        {"MX", "55", "+52 (155) 12345678", "00445512345678"}, // mobile of the own area
        {"MX", "55", "+52 (133) 12345678", "00453312345678"}, // mobile of another area
        {"AR", "11", "43215678", "043215678"},
        {"AR", "11", "03514123456", "003514123456"},
        // The plan writes mobiles "+54 9 (11) ...". Formatting looks the mask up under the text
        // before "(", "54 9", which no mask can have: the empty mask leaves the subscriber number.
        {"AR", "11", "1543215678", "043215678"},
        {"AU", "2", "98765432", "098765432"},
        {"AU", "2", "0398765432", "00398765432"},
        {"AU", "2", "1300123456", "01300123456"}, // service number: no trunk prefix
        {"CO", "1", "2345678", "02345678"},
        {"CO", "1", "0941234567", "00741234567"}, // national, through the default operator
        {"CO", "1", "033001234567", "0033001234567"},
        // International: the subscriber number twice and no country code, as dialled.
        {"CO", "1", "00934911234567", "0007911234567911234567"},
    };
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    for (const Case& c : cases) {
        KesDialRulesItem installation(c.country, "0", 5, c.area, 0, "");
        EXPECT_EQ(rules->makePhoneNumber(&installation, c.typed), c.dialled) << c.country << " " << c.typed;
    }
    // Dialled with the international prefix, an own-country number keeps its operator prefix (the
    // Colombian plan reads the carrier from it), a foreign one loses it.
    KesDialRulesItem bogota("CO", "0", 5, "1", 0, "");
    EXPECT_EQ(rules->makeCanonicalNumber(&bogota, "004565741234567", ""), "+57 (4) 1234567");
    EXPECT_EQ(rules->makeCanonicalNumber(&bogota, "00934911234567", ""), "+34 911234567");
    testconfig::reload();
}
