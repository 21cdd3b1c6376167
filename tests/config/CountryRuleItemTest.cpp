#include "numbering/KesCountryRuleItem.h"

#include <gtest/gtest.h>

using numbering::KesCountryRuleItem;

TEST(KesCountryRuleItem, PrefixesComeFromTheRules) {
    struct Case {
        const char* rule;
        const char* prefix;
    } cases[] = {
        {"0F", "0"}, {"I", ""}, {"9I", "9"}, {"12", ""}, {"1I2F", "1I2"}, {"", ""}, {"01F", "01"}, {"f", ""},
    };
    for (const Case& c : cases) {
        KesCountryRuleItem* item = new KesCountryRuleItem("33", "00", "EF", c.rule, c.rule, "France");
        EXPECT_EQ(item->getLongDistPrefix(), c.prefix) << c.rule;
        EXPECT_EQ(item->getLocalDistPrefix(), c.prefix) << c.rule;
        item->release();
    }
}

TEST(KesCountryRuleItem, OnlyTheLongDistanceRuleIsTrimmed) {
    KesCountryRuleItem* item = new KesCountryRuleItem("33", "00", "EF", "  0F ", " 0F ", "France");
    EXPECT_EQ(item->getLongDistRule(), "0F");
    EXPECT_EQ(item->getLongDistPrefix(), "0");
    EXPECT_EQ(item->getLocalRule(), " 0F ");
    EXPECT_EQ(item->getLocalDistPrefix(), " 0");
    EXPECT_EQ(item->getCountryNumber(), "33");
    EXPECT_EQ(item->getInternatPfx(), "00");
    EXPECT_EQ(item->getInternatRule(), "EF");
    EXPECT_EQ(item->getCountryName(), "France");
    item->release();
}

TEST(KesCountryRuleItem, LiveCountFollowsTheLastRelease) {
    int before = KesCountryRuleItem::_count;
    KesCountryRuleItem* item = new KesCountryRuleItem("1", "011", "EF", "1F", "", "United States");
    EXPECT_EQ(KesCountryRuleItem::_count, before + 1);
    item->duplicate();
    item->release();
    EXPECT_EQ(KesCountryRuleItem::_count, before + 1);
    item->release();
    EXPECT_EQ(KesCountryRuleItem::_count, before);
}
