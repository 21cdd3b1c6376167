#include "FacadeWorld.h"

#include "numbering/KesNumberingConfig.h"

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;

namespace {

class Facade : public FacadeTest {};

TEST_F(Facade, CountryLookUpsPassThroughTheStore) {
    std::vector<std::string> names = facade->getCountryList();
    ASSERT_EQ(names.size(), 11u);
    EXPECT_EQ(names.front(), "Belarus");
    EXPECT_EQ(names.back(), "Sweden");
    EXPECT_EQ(facade->getCountryCode("Sweden"), "SE");
    EXPECT_EQ(facade->getCountryName("SE"), "Sweden");
    EXPECT_EQ(facade->getCountryCodeFromNumber("46"), "SE");
    EXPECT_EQ(facade->getCountryCode("Atlantis"), "");
    EXPECT_EQ(facade->getCountryName("SEE"), "");
    EXPECT_EQ(facade->getCountryCodeFromNumber("4"), "");
}

// A reset drops every cache with the facade, so that the next use reads the files again.
TEST_F(Facade, ResetRereadsTheFiles) {
    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Konungariket Sverige:P\n");
    {
        testhost::Tracing tracing;
        KesNumberingRules::resetInstance();
        EXPECT_EQ(testhost::lines().front(), "DEBUG N9numbering17KesNumberingRulesE - Releasing resources");
    }
    EXPECT_EQ(KesNumberingRules::instance, nullptr);
    EXPECT_EQ(KesNumberingConfig::instance, nullptr);
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade->getCountryName("SE"), "Konungariket Sverige");
}

} // namespace
