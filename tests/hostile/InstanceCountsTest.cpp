// After a reset every object the library made is gone: the live-instance counters are back where
// they started.
#include "TestConfig.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP.h"
#include "numbering/KesCharsTreeElement.h"
#include "numbering/KesClid.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesNumberingRules.h"

#include <gtest/gtest.h>

#include <array>

using namespace numbering;

namespace {

std::array<int, 6> liveInstances() {
    return {KesClid::_count, KesCountryRuleItem::_count, KesCharsTreeElement::_count,
            KesAreaCodeTree::_count, KesCNP::_count, KesDialable::_count};
}

} // namespace

TEST(InstanceCounts, ResetReleasesEverything) {
    testconfig::useStandardWorld();
    const char* codes = "Translate=1\nAC_0000=1\nAC_0001=11\nAC_0002=2\nAC_0003=20\nAC_0004=30\nAC_0005=89\n";
    for (const char* code : {"49", "43", "31", "32", "44", "353", "61", "54", "52"})
        testconfig::write(std::string("tz310cnp_") + code + ".properties", codes);
    testconfig::write("tz310cnp_57.properties", "OP_0000=5\nOP_0001=7\n");
    testconfig::reload();
    const std::array<int, 6> before = liveInstances();

    KesNumberingRules* rules = KesNumberingRules::getInstance();
    for (const char* country : {"AR", "AT", "AU", "BE", "CA", "CH", "CO", "DE", "ES", "FR", "GB", "IE", "IT", "MX",
                                "NL", "NZ", "RU", "US"}) {
        KesDialRulesItem site(country, "0", 4, "1", 0, "");
        for (const char* number : {"0111234567", "+49 (89) 123456", "1234567", "0033123456789"}) {
            rules->makePhoneNumber(&site, number);
            if (KesClid* clid = rules->makeClid(&site, number))
                clid->release();
        }
    }
    EXPECT_GT(KesCNP::_count, before[4]);
    EXPECT_GT(KesDialable::_count, before[5]);
    EXPECT_GT(KesAreaCodeTree::_count, before[3]);

    KesNumberingRules::resetInstance();
    const std::array<int, 6> after = liveInstances();
    EXPECT_EQ(after[0], before[0]) << "caller identities";
    EXPECT_EQ(after[1], 0) << "country records";
    EXPECT_EQ(after[2], before[2]) << "tree nodes";
    EXPECT_EQ(after[3], before[3]) << "area code trees";
    EXPECT_EQ(after[4], before[4]) << "plans";
    EXPECT_EQ(after[5], before[5]) << "dialing strategies";
}
