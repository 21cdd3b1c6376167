#include "FacadeWorld.h"

#include "numbering/KesClid.h"
#include "numbering/KesEnumOrigin.h"

#include <Poco/AutoPtr.h>

#include <string>
#include <vector>

using namespace numbering;
using facadeworld::FacadeTest;
using facadeworld::invalidArgumentText;
using facadeworld::stockholm;

namespace {

class CallerLineIdentity : public FacadeTest {
protected:
    struct Case {
        std::string calling;
        std::string number;
        KesEnumOrigin* origin;
    };

    void expectClids(KesDialRulesItem& rules, const std::vector<Case>& cases) {
        for (const Case& c : cases) {
            Poco::AutoPtr<KesClid> clid(facade->makeClid(&rules, c.calling));
            ASSERT_FALSE(clid.isNull()) << c.calling;
            EXPECT_EQ(clid->getNumber(), c.number) << c.calling;
            EXPECT_EQ(clid->getOrigin(), c.origin) << c.calling << " is " << clid->getOrigin()->name;
        }
    }
};

TEST_F(CallerLineIdentity, ShortestUnambiguousFormAndOrigin) {
    KesDialRulesItem rules = stockholm(5);
    expectClids(rules, {
                           // The own area.
                           {"+46 8 123 456 78", "12345678", &KesEnumOrigin::PUBLIC_1},
                           // Elsewhere in the own country.
                           {"+46 31 123 456", "31123456", &KesEnumOrigin::NATIONAL},
                           // The national prefix in the parentheses, in place of an area code.
                           {"08 123 456 78", "812345678", &KesEnumOrigin::NATIONAL},
                           // Abroad: country, area and subscriber.
                           {"+39 06 1234", "39061234", &KesEnumOrigin::INTERNATIONAL},
                           // Abroad, with a national prefix equal to the Swedish one: left out.
                           {"+48 (0) 22 123 45 67", "48221234567", &KesEnumOrigin::INTERNATIONAL},
                           // Not canonical: a local number and a service code.
                           {"1234", "1234", &KesEnumOrigin::PRIVATE_1},
                           {"*21#", "*21#", &KesEnumOrigin::PRIVATE_1},
                       });
}

// The national prefix left out is the installation's own, not the calling country's.
TEST_F(CallerLineIdentity, ComparesWithTheInstallationsNationalPrefix) {
    KesDialRulesItem minsk("BY", "0", 0, "17", 0, "");
    expectClids(minsk, {
                           {"+48 (0) 22 123 45 67", "480221234567", &KesEnumOrigin::INTERNATIONAL},
                           // Belarus writes its national prefix "8": a Swedish area code 8 is left out.
                           {"+46 (8) 123", "46123", &KesEnumOrigin::INTERNATIONAL},
                       });
}

TEST_F(CallerLineIdentity, RejectedNumberGivesNoIdentity) {
    KesDialRulesItem rules = stockholm();
    int before = KesClid::_count;
    EXPECT_EQ(facade->makeClid(&rules, "0123x"), nullptr);
    EXPECT_EQ(KesClid::_count, before);
    EXPECT_EQ(invalidArgumentText([&] { facade->makeClid(nullptr, ""); }),
              "'myKesDialRulesItem' parameter can not be null");
    EXPECT_EQ(invalidArgumentText([&] { facade->makeClid(&rules, ""); }),
              "'strPhoneNumber' parameter can not be null");
}

} // namespace
