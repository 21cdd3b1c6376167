#include "FacadeWorld.h"

#include "numbering/KesCNP.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesClid.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/AutoPtr.h>

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::stockholm;

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

// Every cache goes with the facade, so that the next use reads the files again.
TEST_F(Facade, ResetTearsDownEveryCacheAndRereadsTheFiles) {
    testconfig::reload();
    const int plans = KesCNP::_count;
    const int strategies = KesDialable::_count;
    const int rules = KesCountryRuleItem::_count;
    facade = KesNumberingRules::getInstance();
    KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
    KesDialRulesItem sweden = stockholm();
    facade->makeCanonicalNumber(&paris, "0123456789", "");
    facade->makePhoneNumber(&sweden, "+39 06 1234");
    EXPECT_GT(KesCNP::_count, plans);
    EXPECT_GT(KesDialable::_count, strategies);

    testconfig::write("dialingrules.properties", "SE = 46:00:EF:0F::Konungariket Sverige:P\n");
    {
        testhost::Tracing tracing;
        KesNumberingRules::resetInstance();
        EXPECT_EQ(testhost::lines().front(), "DEBUG N9numbering17KesNumberingRulesE - Releasing resources");
    }
    EXPECT_EQ(KesCNPManager::instance, nullptr);
    EXPECT_EQ(KesDialableManager::instance, nullptr);
    EXPECT_EQ(KesNumberingConfig::instance, nullptr);
    EXPECT_EQ(KesNumberingRules::config, nullptr);
    EXPECT_EQ(KesNumberingRules::instance, nullptr);
    EXPECT_EQ(KesCNP::_count, plans);
    EXPECT_EQ(KesDialable::_count, strategies);
    EXPECT_EQ(KesCountryRuleItem::_count, rules);
    facade = KesNumberingRules::getInstance();
    EXPECT_EQ(facade, KesNumberingRules::getInstance());
    EXPECT_EQ(KesNumberingRules::config, KesNumberingConfig::instance);
    EXPECT_EQ(facade->getCountryName("SE"), "Konungariket Sverige");
}

TEST_F(Facade, NoDebugTextWhileTracingIsOff) {
    KesDialRulesItem rules = stockholm(5);
    testhost::Tracing off(false);
    facade->makeCanonicalNumber(&rules, "08 123 456 78", "+C (a) x");
    facade->makeClid(&rules, "+46 8 123")->release();
    facade->makePhoneNumber(&rules, "+39 06 1234");
    facade->addExternalPrefix(&rules, "1234");
    facade->makeGSMCanonicalNumber(&rules, "0123x", false);
    EXPECT_EQ(testhost::countLogged("DEBUG "), 0);
    // Errors are written all the same.
    EXPECT_EQ(testhost::countLogged("ERROR "), 1);
}

// Whatever arrives, no conversion fails the host: at worst an empty result and an error line.
TEST_F(Facade, OddInputsNeverFailTheHost) {
    useMasks("Mask_46_1 = +C (a) xxx xxx xx\n");
    KesDialRulesItem rules = stockholm(4, "1");
    auto convertAll = [&](const std::string& number) {
        facade->makeCanonicalNumber(&rules, number, "", true);
        facade->makeGSMCanonicalNumber(&rules, number, false);
        facade->makePhoneNumber(&rules, number);
        facade->addExternalPrefix(&rules, number);
        Poco::AutoPtr<KesClid> clid(facade->makeClid(&rules, number));
        facade->formatCanonicalNumber(number, "");
        facade->formatToGSMCanonicalNumber(number);
        facade->makeDialableNumber(&rules, number);
    };
    const std::string odd[] = {"+",
                               "++",
                               "(",
                               ")",
                               "()",
                               "+(",
                               "+ (",
                               "+46 (",
                               "+46 ()",
                               "+46 (8",
                               ")(",
                               "|",
                               "+|",
                               "0|",
                               "00",
                               "000",
                               "0\t",
                               "+46 (8) )",
                               "\xff\xfe",
                               "+ 46 ",
                               "+46 8 (",
                               "00 46 ()",
                               "*#*",
                               std::string("0\0"
                                           "1",
                                           3),
                               "+" + std::string(300, '4'),
                               "+46 " + std::string(300, '('),
                               "00 46 " + std::string(100, '8')};
    for (const std::string& number : odd)
        EXPECT_NO_THROW(convertAll(number)) << "'" << number << "'";
}

} // namespace
