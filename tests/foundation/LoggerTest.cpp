#include "TestHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <gtest/gtest.h>

#include <string>

TEST(Logger, EveryCallMakesADistinctLogger) {
    Logger* first = Logger::getLogger("N9numbering4SameE");
    Logger* second = Logger::getLogger("N9numbering4SameE");
    EXPECT_NE(first, second);
    EXPECT_EQ(first->name, second->name);
    delete first;
    delete second;
}

TEST(Logger, LinesCarryLevelNameSeparatorAndMessage) {
    testhost::clear();
    Logger* logger = Logger::getLogger("N9numbering18KesNumberingConfigE");
    logger->debug("loadDialingRules()");
    logger->info("info text");
    logger->error("");
    ASSERT_EQ(testhost::lines().size(), 3u);
    EXPECT_EQ(testhost::lines()[0], "DEBUG N9numbering18KesNumberingConfigE - loadDialingRules()");
    EXPECT_EQ(testhost::lines()[1], "INFO N9numbering18KesNumberingConfigE - info text");
    // An empty message leaves the line ending in the separator's blank.
    EXPECT_EQ(testhost::lines()[2], "ERROR N9numbering18KesNumberingConfigE - ");
    delete logger;
}

// What reaches the sink for a message: control characters escaped, other bytes as they are, the
// message ending at a NUL as the C string the sink receives would.
TEST(Logger, ControlCharactersAreEscapedAndNothingElse) {
    struct Case {
        std::string message;
        std::string logged;
    };
    const Case cases[] = {
        {"+33 (1) 23456789 ()-.*#ABCD \\n", "+33 (1) 23456789 ()-.*#ABCD \\n"},
        {"a\nb\rc\td", "a\\nb\\rc\\td"},
        {"\x1b[31m\x07\x7f\x01", "\\x1b[31m\\x07\\x7f\\x01"},
        {"caf\xc3\xa9 \x9b", "caf\xc3\xa9 \x9b"},
        {std::string("12\0\nhidden", 10), "12"},
    };
    Logger* logger = Logger::getLogger("N9numbering4TestE");
    for (const Case& c : cases) {
        testhost::clear();
        logger->info(c.message);
        ASSERT_EQ(testhost::lines().size(), 1u);
        EXPECT_EQ(testhost::lines()[0], "INFO N9numbering4TestE - " + c.logged);
    }
    testhost::clear();
    logger->error("first\n", std::string("  second\x1b\0gone", 15));
    EXPECT_EQ(testhost::lines().at(0), "ERROR N9numbering4TestE - first\\n\n  second\\x1b");
    testhost::clear();
    logger->error(std::string("cut\0", 4), "  never written");
    EXPECT_EQ(testhost::lines().at(0), "ERROR N9numbering4TestE - cut");
    delete logger;
}

// The test program defines FlogWrite and Logger::m_Traces itself, as a host does: the library must
// use these, not its fallbacks, both for writing and for deciding whether to trace.
TEST(Logger, HostDefinitionsWinOverTheLibraryFallbacks) {
    numbering::KesDialRulesItem rules;
    {
        testhost::Tracing off(false);
        rules.isLocalNumber("123");
        EXPECT_TRUE(testhost::lines().empty());
    }
    {
        testhost::Tracing on;
        rules.isLocalNumber("123");
        ASSERT_EQ(testhost::lines().size(), 1u);
        EXPECT_EQ(testhost::lines()[0], "DEBUG N9numbering16KesDialRulesItemE - isLocalNumber('123')=false");
    }
}
