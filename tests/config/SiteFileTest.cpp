#include "TestConfig.h"

#include "numbering/KesSiteFile.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace numbering;

// A host's installation from its site file: every setting reaches the KesDialRulesItem; the tool's
// tests cover the findings of check().
TEST(SiteFile, MakesTheHostsInstallation) {
    testconfig::clearAll();
    testconfig::write("dialingrules.properties", "FR = 33:00:EF:0F::France:P\n");
    testconfig::reload();
    testconfig::write("site.properties", "# Paris\ncountry = FR\next_prefix = 9\narea_codes = 1, 2\n"
                                         "local_length = 5\nexcept_length = 3\nexcept_begin = 11\n");
    const KesSiteFile site = KesSiteFile::read(testconfig::directory() + "site.properties");
    EXPECT_TRUE(site.check().empty());
    const std::unique_ptr<KesDialRulesItem> rules = site.makeDialRulesItem();
    EXPECT_EQ(rules->getCountryId(), "FR");
    EXPECT_EQ(rules->getExtPrefix(), "9");
    EXPECT_EQ(rules->getAreaCodesList(), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(rules->getLocalNbLength(), 5);
    EXPECT_EQ(rules->getExceptNbLength(), 3);
    EXPECT_EQ(rules->getExceptNbBegin(), "11");

    testconfig::write("site.properties", "country = DE\n");
    const KesSiteFile elsewhere = KesSiteFile::read(testconfig::directory() + "site.properties");
    ASSERT_EQ(elsewhere.check().size(), 1u);
    EXPECT_EQ(elsewhere.check()[0].line, 1);
    EXPECT_THROW(elsewhere.makeDialRulesItem(), KesUnsupportedCountryException);
    EXPECT_THROW(KesSiteFile::read(testconfig::directory() + "missing.properties"), std::runtime_error);
    testconfig::reload();
}
