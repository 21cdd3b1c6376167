#include "TestHost.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <gtest/gtest.h>

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
