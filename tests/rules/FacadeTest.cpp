#include "FacadeWorld.h"

#include "numbering/KesClid.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/AutoPtr.h>

#include <functional>
#include <string>
#include <vector>

using namespace numbering;
using facadeworld::invalidArgumentText;

namespace {

class Facade : public facadeworld::FacadeTest {};

TEST_F(Facade, CountryLookUpsPassThroughTheStore) {
    std::vector<std::string> names = facade->getCountryList();
    ASSERT_EQ(names.size(), 11u);
    EXPECT_EQ(names.front(), "Belarus");
    EXPECT_EQ(names.back(), "Sweden");
    EXPECT_EQ(facade->getCountryCode("Sweden"), "SE");
    EXPECT_EQ(facade->getCountryName("SE"), "Sweden");
    EXPECT_EQ(facade->getCountryCodeFromNumber("46"), "SE");
    EXPECT_EQ(facade->getCountryCode("Atlantis"), "");
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

// The shortest form that tells the caller apart, and where the call comes from.
TEST_F(Facade, CallerLineIdentities) {
    KesDialRulesItem stockholm = facadeworld::stockholm(5), minsk("BY", "0", 0, "17", 0, "");
    struct Case {
        KesDialRulesItem* rules;
        const char *calling, *number;
        const KesEnumOrigin* origin;
    } const cases[] = {
        {&stockholm, "+46 8 123 456 78", "12345678", &KesEnumOrigin::PUBLIC_1}, // the own area
        {&stockholm, "+46 31 123 456", "31123456", &KesEnumOrigin::NATIONAL},
        // The national prefix in the parentheses, in place of an area code.
        {&stockholm, "08 123 456 78", "812345678", &KesEnumOrigin::NATIONAL},
        {&stockholm, "+39 06 1234", "39061234", &KesEnumOrigin::INTERNATIONAL},
        // Abroad, with a national prefix equal to the installation's own: left out ...
        {&stockholm, "+48 (0) 22 123 45 67", "48221234567", &KesEnumOrigin::INTERNATIONAL},
        // ... the installation's, not the calling country's: Belarus writes "8".
        {&minsk, "+48 (0) 22 123 45 67", "480221234567", &KesEnumOrigin::INTERNATIONAL},
        {&minsk, "+46 (8) 123", "46123", &KesEnumOrigin::INTERNATIONAL},
        // Not canonical: a local number and a service code.
        {&stockholm, "1234", "1234", &KesEnumOrigin::PRIVATE_1},
        {&stockholm, "*21#", "*21#", &KesEnumOrigin::PRIVATE_1},
    };
    for (const Case& c : cases) {
        Poco::AutoPtr<KesClid> clid(facade->makeClid(c.rules, c.calling));
        ASSERT_FALSE(clid.isNull()) << c.calling;
        EXPECT_EQ(clid->getNumber(), c.number) << c.calling;
        EXPECT_EQ(clid->getOrigin(), c.origin) << c.calling << " is " << clid->getOrigin()->name;
    }
    const int before = KesClid::_count;
    EXPECT_EQ(facade->makeClid(&stockholm, "0123x"), nullptr);
    EXPECT_EQ(KesClid::_count, before);
}

// Every conversion that takes installation rules and a number refuses a null rules pointer and an
// empty number with the same two messages.
TEST_F(Facade, MissingArgumentsOfEveryConversion) {
    KesDialRulesItem rules = facadeworld::stockholm();
    const std::function<void(KesDialRulesItem*, const std::string&)> conversions[] = {
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeCanonicalNumber(r, n, "", true); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makeGSMCanonicalNumber(r, n, false); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->makePhoneNumber(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { facade->addExternalPrefix(r, n); },
        [&](KesDialRulesItem* r, const std::string& n) { Poco::AutoPtr<KesClid>(facade->makeClid(r, n)); },
    };
    int index = 0;
    for (const auto& convert : conversions) {
        EXPECT_EQ(invalidArgumentText([&] { convert(nullptr, ""); }),
                  "'myKesDialRulesItem' parameter can not be null")
            << index;
        EXPECT_EQ(invalidArgumentText([&] { convert(&rules, ""); }),
                  "'strPhoneNumber' parameter can not be null")
            << index++;
    }
}

} // namespace
