#include "numbering/KesClid.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/number_format_exception.h"

#include <gtest/gtest.h>

using namespace numbering;

TEST(KesEnumOrigin, ValuesAreNumberedInDeclarationOrder) {
    const KesEnumOrigin* origins[] = {&KesEnumOrigin::ANY, &KesEnumOrigin::INTERNATIONAL, &KesEnumOrigin::NATIONAL,
                                      &KesEnumOrigin::PRIVATE_1, &KesEnumOrigin::PUBLIC_1};
    const char* names[] = {"Any", "International", "National", "Private", "Public"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(origins[i]->id, i + 1);
        EXPECT_EQ(origins[i]->name, names[i]);
    }
    EXPECT_TRUE(KesEnumOrigin::ANY < KesEnumOrigin::PUBLIC_1);
    EXPECT_FALSE(KesEnumOrigin::PUBLIC_1 < KesEnumOrigin::ANY);
    EXPECT_TRUE(KesEnumOrigin::NATIONAL != KesEnumOrigin::PUBLIC_1);
}

TEST(TypesafeEnum, ComparesByIdNotByName) {
    TypesafeEnum first("Same");
    TypesafeEnum second("Same");
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first != second);
    EXPECT_EQ(second.id, first.id + 1);
    EXPECT_TRUE(first == first);
}

TEST(KesClid, DefaultAndReleasedIdentity) {
    int before = KesClid::_count;
    KesClid* clid = new KesClid();
    EXPECT_EQ(KesClid::_count, before + 1);
    EXPECT_EQ(clid->getNumber(), "");
    EXPECT_EQ(clid->getOrigin(), &KesEnumOrigin::ANY);
    clid->duplicate();
    clid->release();
    EXPECT_EQ(KesClid::_count, before + 1) << "one reference is still held";
    clid->release();
    EXPECT_EQ(KesClid::_count, before);
}

TEST(KesClid, StoresNumberAndOrigin) {
    KesClid clid("0123", &KesEnumOrigin::NATIONAL);
    EXPECT_EQ(clid.getNumber(), "0123");
    EXPECT_EQ(clid.getOrigin(), &KesEnumOrigin::NATIONAL);
    clid.setOrigin(&KesEnumOrigin::PUBLIC_1);
    clid.setNumber("45");
    EXPECT_EQ(clid.getNumber(), "45");
    EXPECT_EQ(clid.getOrigin(), &KesEnumOrigin::PUBLIC_1);
}

TEST(Exceptions, UnsupportedCountryMessages) {
    EXPECT_STREQ(KesUnsupportedCountryException("XX").what(), "Country code 'XX' is not supported");
    EXPECT_STREQ(KesUnsupportedCountryException("XX", "Dialing rules configuration can not be loaded").what(),
                 "Country code 'XX' is not supported : Dialing rules configuration can not be loaded");
}

TEST(Exceptions, UnsupportedCountryEscapesStandardHandlers) {
    bool caughtAsStandard = false;
    bool caughtAsItself = false;
    try {
        try {
            throw KesUnsupportedCountryException("XX");
        } catch (const std::exception&) {
            caughtAsStandard = true;
        }
    } catch (const KesUnsupportedCountryException&) {
        caughtAsItself = true;
    }
    EXPECT_FALSE(caughtAsStandard);
    EXPECT_TRUE(caughtAsItself);
}

TEST(Exceptions, NumberFormatIsAnInvalidArgument) {
    try {
        throw number_format_exception("bad digit");
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "bad digit");
        return;
    }
    FAIL() << "number_format_exception must be caught as std::invalid_argument";
}
