#include "TestHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/KesUnsupportedCountryException.h"
#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include <gtest/gtest.h>

#include <string>

using namespace numbering;

// What reaches the sink: level, logger name, separator, then the message with control characters
// escaped, other bytes as they are, ending at a NUL as the C string the sink receives would.
TEST(Logger, LineLayoutAndEscaping) {
    const std::string cases[][2] = {
        {"", ""},
        {"+33 (1) 23456789 ()-.*#ABCD \\n", "+33 (1) 23456789 ()-.*#ABCD \\n"},
        {"a\nb\rc\td", "a\\nb\\rc\\td"},
        {"\x1b[31m\x07\x7f\x01", "\\x1b[31m\\x07\\x7f\\x01"},
        {"caf\xc3\xa9 \x9b", "caf\xc3\xa9 \x9b"},
        {std::string("12\0\nhidden", 10), "12"},
    };
    Logger* logger = Logger::getLogger("N9numbering4TestE");
    for (const auto& c : cases) {
        testhost::clear();
        logger->info(c[0]);
        EXPECT_EQ(testhost::lines().at(0), "INFO N9numbering4TestE - " + c[1]);
    }
    testhost::clear();
    logger->debug("d");
    logger->error("first\n", std::string("  second\x1b\0gone", 15));
    logger->error(std::string("cut\0", 4), "  never written");
    EXPECT_EQ(testhost::lines().at(0), "DEBUG N9numbering4TestE - d");
    EXPECT_EQ(testhost::lines().at(1), "ERROR N9numbering4TestE - first\\n\n  second\\x1b");
    EXPECT_EQ(testhost::lines().at(2), "ERROR N9numbering4TestE - cut");
    delete logger;
}

// The test program defines FlogWrite and Logger::m_Traces itself, as a host does: the library must
// use these, not its fallbacks (tracing off: OddInputsTest).
TEST(Logger, HostDefinitionsWinOverTheLibraryFallbacks) {
    KesDialRulesItem rules;
    testhost::Tracing on;
    rules.isLocalNumber("123");
    ASSERT_EQ(testhost::lines().size(), 1u);
    EXPECT_EQ(testhost::lines()[0], "DEBUG N9numbering16KesDialRulesItemE - isLocalNumber('123')=false");
}

TEST(ValueTypes, OriginsAreNumberedInDeclarationOrder) {
    const std::pair<const KesEnumOrigin*, const char*> origins[] = {
        {&KesEnumOrigin::ANY, "Any"},
        {&KesEnumOrigin::INTERNATIONAL, "International"},
        {&KesEnumOrigin::NATIONAL, "National"},
        {&KesEnumOrigin::PRIVATE_1, "Private"},
        {&KesEnumOrigin::PUBLIC_1, "Public"}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(origins[i].first->id, i + 1);
        EXPECT_EQ(origins[i].first->name, origins[i].second);
    }
    EXPECT_TRUE(KesEnumOrigin::ANY < KesEnumOrigin::PUBLIC_1);
    EXPECT_TRUE(TypesafeEnum("Same") != TypesafeEnum("Same")) << "compared by id, never by name";
}

// The unsupported-country exception derives from no standard exception: a catch of std::exception
// does not see it.
TEST(ValueTypes, Exceptions) {
    EXPECT_STREQ(KesUnsupportedCountryException("XX").what(), "Country code 'XX' is not supported");
    EXPECT_STREQ(KesUnsupportedCountryException("XX", "Dialing rules configuration can not be loaded").what(),
                 "Country code 'XX' is not supported : Dialing rules configuration can not be loaded");
    bool caughtAsStandard = false;
    try {
        try {
            throw KesUnsupportedCountryException("XX");
        } catch (const std::exception&) {
            caughtAsStandard = true;
        }
    } catch (const KesUnsupportedCountryException&) {
    }
    EXPECT_FALSE(caughtAsStandard);
    EXPECT_THROW(throw number_format_exception("bad digit"), std::invalid_argument);
}
