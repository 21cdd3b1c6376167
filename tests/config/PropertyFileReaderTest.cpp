// What the loaders take from Poco's reading of a property file: the last value of a repeated key,
// references to other properties expanded, and a key with a dot that the store cannot read.
#include "TestConfig.h"
#include "TestHost.h"

#include "numbering/KesCNP_49.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/AutoPtr.h>
#include <gtest/gtest.h>

using namespace numbering;

namespace {

class PropertyFileReader : public ::testing::Test {
protected:
    void SetUp() override { testconfig::useStandardWorld(); }
    void TearDown() override {
        testconfig::clearAll();
        testconfig::reload();
    }
};

} // namespace

TEST_F(PropertyFileReader, StoreTakesTheLastValueExpandsReferencesAndStopsAtADottedKey) {
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n"
                                                 "DE = 99:00:EF:0F::Wrong:P\n"
                                                 "DE = 49:00:EF:0F::Germany:P\n"
                                                 "NL = ${x.nl}\n"
                                                 "x.nl = 31:00:EF:0F::Netherlands:P\n");
    testconfig::reload();
    testhost::Tracing off(false);
    KesNumberingConfig* store = KesNumberingConfig::getInstance();
    EXPECT_EQ(store->getCountryNumber("DE"), "49");
    EXPECT_EQ(store->getCountryCodeFromNumber("99"), "");
    EXPECT_EQ(store->getCountryNumber("NL"), "31");
    // The keys come as "DE", "FR", "NL", "x": the last one is not a key of the file.
    EXPECT_TRUE(testhost::logged("ERROR N9numbering18KesNumberingConfigE - "
                                 "KesNumberingConfig::loadDialingRules Exception : Not found"));
    EXPECT_EQ(store->getCountryNumber("FR"), "33");
}

TEST_F(PropertyFileReader, AreaCodesTakeTheLastValueAndExpandReferences) {
    testconfig::write("tz310cnp_49.properties", "Translate=1\nbase=30\nAC_0000=${base}1 Berlin\n"
                                                "AC_0001=40\nAC_0001=89\n");
    Poco::AutoPtr<KesCNP_49> germany(new KesCNP_49());
    EXPECT_EQ(germany->areaCodeCount, 2);
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("30123"), "301");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("89123"), "89");
    EXPECT_EQ(germany->areaCodeTree->extractAreaCode("40123"), "");
}
