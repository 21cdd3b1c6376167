#include "ConversionTable.h"
#include "TestConfig.h"

#include "numbering/KesCNP_33.h"
#include "numbering/KesCNP_7.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"

#include <gtest/gtest.h>

using namespace conversiontable;
using numbering::KesCNP_33;
using numbering::KesCNP_7;
using numbering::KesDialRulesItem;
using numbering::KesNumberingConfig;

namespace {

class FixedLengthPlans : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override { testconfig::reload(); }
};

// Neither France nor Russia: the plans find no national prefix.
const char* const WORLD_WITHOUT_FRANCE_AND_RUSSIA = "DE = 49:00:EF:0F::Germany:P\n"
                                                    "US = 1:011:EF:1F::United States:P\n";

} // namespace

TEST_F(FixedLengthPlans, FranceAroundTheNationalLengthOfTen) {
    KesCNP_33 plan;
    KesDialRulesItem rules("FR", "0", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"12345", UNCHANGED},
                       {"12345678", UNCHANGED},
                       {"123456789", "+33 (0) 123456789"},
                       {"012345678", UNCHANGED}, // already carries the prefix: not completed
                       {"0123456789", "+33 (0) 123456789"},
                       {"1234567890", "+33 (1) 234567890"},
                       {"00123456789", "+33 (0) 123456789"},
                       {"10123456789", UNCHANGED},
                       {"000123456789", UNCHANGED}});
}

TEST_F(FixedLengthPlans, RussiaAroundTheNationalLengthOfEleven) {
    KesCNP_7 plan;
    KesDialRulesItem rules("RU", "0", 0, "", 0, "");
    expectConversions(plan, rules,
                      {{"495123456", UNCHANGED},
                       {"4951234567", "+7 (495) 1234567"},
                       {"8495123456", "+7 (849) 5123456"}, // length alone decides
                       {"84951234567", "+7 (495) 1234567"},
                       {"94951234567", "+7 (495) 1234567"},
                       {"084951234567", "+7 (495) 1234567"},
                       {"184951234567", UNCHANGED},
                       {"0084951234567", UNCHANGED}});
}

TEST_F(FixedLengthPlans, LocalAndExceptionNumbersAreNotCompleted) {
    KesCNP_33 france;
    KesCNP_7 russia;
    KesDialRulesItem local("FR", "0", 10, "", 0, "");
    expectConversions(france, local, {{"123456789", UNCHANGED}, {"0123456789", "+33 (0) 123456789"}});
    KesDialRulesItem exception("RU", "0", 0, "", 0, "49");
    expectConversions(russia, exception, {{"4951234567", UNCHANGED}, {"3951234567", "+7 (395) 1234567"}});
}

TEST_F(FixedLengthPlans, MissingCountryRowsMeanNoNationalPrefix) {
    testconfig::write("dialingrules.properties", WORLD_WITHOUT_FRANCE_AND_RUSSIA);
    testconfig::reload();
    KesCNP_33 france;
    KesCNP_7 russia;
    KesDialRulesItem rules; // France, not validated against the rules
    rules.setExtPrefix("0");
    expectConversions(france, rules,
                      {{"123456789", UNCHANGED},
                       {"0123456789", "+33 (0) 123456789"},
                       {"00123456789", "+33 (0) 123456789"}});
    expectConversions(russia, rules,
                      {{"4951234567", UNCHANGED},
                       {"84951234567", "+7 (495) 1234567"},
                       {"084951234567", "+7 (495) 1234567"}});
}

TEST_F(FixedLengthPlans, PlansReadTheStoreInUseAfterAReset) {
    KesCNP_7 russia;
    KesCNP_33 france;
    testconfig::write("dialingrules.properties", WORLD_WITHOUT_FRANCE_AND_RUSSIA);
    testconfig::reload();

    // The plans built before the reset read the new store: it has no Russian prefix to add.
    KesDialRulesItem rules;
    expectConversions(russia, rules, {{"4951234567", UNCHANGED}, {"84951234567", "+7 (495) 1234567"}});
    expectConversions(france, rules, {{"123456789", UNCHANGED}});
}
