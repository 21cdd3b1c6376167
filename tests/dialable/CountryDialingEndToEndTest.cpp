#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace numbering;

namespace {

struct Dialled {
    const char* typed;
    const char* expected;
};

/// An installation with the outside-line prefix "0", internal numbers shorter than five digits and
/// no exception numbers, in the standard world plus the given plan files; its display masks keep the
/// layout of "+cc (area) number".
class CountryDialing : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }

    void expectDialled(const char* country, const char* areaCode, const std::vector<Dialled>& cases) {
        KesNumberingRules* rules = KesNumberingRules::getInstance();
        KesDialRulesItem installation(country, "0", 5, areaCode, 0, "");
        for (const Dialled& c : cases)
            EXPECT_EQ(rules->makePhoneNumber(&installation, c.typed), c.expected)
                << country << " installation in area " << areaCode << " dialling " << c.typed;
    }
};

} // namespace

TEST_F(CountryDialing, Russia) {
    expectDialled("RU", "812",
                  {
                      {"+7 (812) 1234567", "01234567"}, // local
                      {"84951234567", "084951234567"},  // national
                      {"4951234567", "084951234567"},   // national without its prefix
                      {"+7 (495) 1234567", "084951234567"},
                      {"89161234567", "089161234567"}, // mobile
                  });
}

TEST_F(CountryDialing, Mexico) {
    expectDialled("MX", "55",
                  {
                      {"+52 (55) 12345678", "012345678"},       // local
                      {"+52 (33) 12345678", "0013312345678"},   // national
                      {"+52 (155) 12345678", "00445512345678"}, // mobile of the own area
                      {"+52 (133) 12345678", "00453312345678"}, // mobile of another area
                  });
}

TEST_F(CountryDialing, Argentina) {
    testconfig::write("tz310cnp_54.properties", "Translate=1\nAC_0000=11\nAC_0001=351\n");
    expectDialled("AR", "11",
                  {
                      {"43215678", "043215678"},           // local
                      {"03514123456", "003514123456"},     // national
                      // The plan writes mobiles "+54 9 (11) ...". Formatting looks the mask up under
                      // the text before "(", "54 9", which no mask can have: the empty mask leaves
                      // the subscriber number, dialled as it stands. The strategy's mobile forms are
                      // shown on their own.
                      {"1543215678", "043215678"},
                      {"0351154123456", "04123456"},
                  });
}

TEST_F(CountryDialing, Australia) {
    testconfig::write("tz310cnp_61.properties", "Translate=1\nAC_0000=2\nAC_0001=3\n");
    expectDialled("AU", "2",
                  {
                      {"98765432", "098765432"},     // local
                      {"0398765432", "00398765432"}, // national
                      {"0412345678", "00412345678"}, // mobile
                      {"1300123456", "01300123456"}, // service number: no trunk prefix
                  });
}

TEST_F(CountryDialing, Colombia) {
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=7\nOP_0000=7\nOP_0001=9\nOP_0002=456\n");
    expectDialled("CO", "1",
                  {
                      {"2345678", "02345678"},           // local
                      {"0941234567", "00741234567"},     // national, through the default operator
                      {"033001234567", "0033001234567"}, // mobile
                      // International: the subscriber number twice and no country code, as dialled.
                      {"00934911234567", "0007911234567911234567"},
                  });
}

// Dialled with the international prefix, an own-country number keeps its operator prefix (the
// Colombian plan reads the carrier from it), a foreign one loses it.
TEST_F(CountryDialing, ColombianCanonicalConversionStripsForeignOperatorPrefixes) {
    testconfig::write("tz310cnp_57.properties", "OP_DEFAULT=7\nOP_0000=7\nOP_0001=9\nOP_0002=456\n");
    KesNumberingRules* rules = KesNumberingRules::getInstance();
    KesDialRulesItem installation("CO", "0", 5, "1", 0, "");
    const Dialled cases[] = {
        {"0095741234567", "+57 (4) 1234567"},   // own country, operator 9
        {"004565741234567", "+57 (4) 1234567"}, // own country, operator 456
        {"00934911234567", "+34 911234567"},    // foreign, operator 9 dropped
        {"0034911234567", "+34 911234567"},     // foreign, no operator
    };
    for (const Dialled& c : cases)
        EXPECT_EQ(rules->makeCanonicalNumber(&installation, c.typed, ""), c.expected) << c.typed;
}
