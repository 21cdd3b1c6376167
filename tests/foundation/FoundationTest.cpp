#include "Suite.h"

// Level, logger, separator, the message with controls escaped and cut at a NUL as a C string would.
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
    testhost::clear();
    for (const auto& c : cases)
        logger->info(c[0]);
    logger->debug("d");
    logger->error("first\n", std::string("  second\x1b\0gone", 15));
    logger->error(std::string("cut\0", 4), "  never written");
    std::vector<std::string> expected;
    for (const auto& c : cases)
        expected.push_back("INFO N9numbering4TestE - " + c[1]);
    expected.insert(expected.end(),
                    {"DEBUG N9numbering4TestE - d", "ERROR N9numbering4TestE - first\\n\n  second\\x1b",
                     "ERROR N9numbering4TestE - cut"});
    EXPECT_EQ(testhost::lines(), expected);
    Logger* another = Logger::getLogger("N9numbering4TestE");
    EXPECT_NE(another, logger) << "a new logger for every call";
    delete another;
    delete logger;
}

TEST(ValueTypes, OriginsAreNumberedInDeclarationOrder) {
    const KesEnumOrigin* origins[] = {&KesEnumOrigin::ANY, &KesEnumOrigin::INTERNATIONAL,
                                      &KesEnumOrigin::NATIONAL, &KesEnumOrigin::PRIVATE_1,
                                      &KesEnumOrigin::PUBLIC_1};
    const char* const names[] = {"Any", "International", "National", "Private", "Public"};
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(origins[i]->id == i + 1 && origins[i]->name == names[i]) << names[i];
    EXPECT_TRUE(KesEnumOrigin::ANY < KesEnumOrigin::PUBLIC_1);
    EXPECT_TRUE(TypesafeEnum("Same") != TypesafeEnum("Same")) << "compared by id, never by name";
}

// A catch of std::exception does not see the unsupported-country exception.
TEST(ValueTypes, Exceptions) {
    EXPECT_STREQ(KesUnsupportedCountryException("XX", "Dialing rules configuration can not be loaded").what(),
                 "Country code 'XX' is not supported : Dialing rules configuration can not be loaded");
    EXPECT_EQ(testhost::thrownText<KesUnsupportedCountryException>([] {
                  try {
                      throw KesUnsupportedCountryException("XX");
                  } catch (const std::exception&) {
                  }
              }),
              "Country code 'XX' is not supported");
    EXPECT_THROW(throw number_format_exception("bad digit"), std::invalid_argument);
}
