#include "TestHost.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/number_format_exception.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace numbering;

TEST(KesAreaCodeTree, ExtractFallsBackToShorterCodes) {
    KesAreaCodeTree tree;
    EXPECT_TRUE(tree.insert("30"));
    EXPECT_TRUE(tree.insert("301"));
    EXPECT_EQ(tree.extractAreaCode("30123"), "301");
    EXPECT_EQ(tree.extractAreaCode("30234"), "30");
    EXPECT_EQ(tree.extractAreaCode("40"), "");

    KesAreaCodeTree longFirst;
    EXPECT_TRUE(longFirst.insert("301"));
    EXPECT_FALSE(longFirst.insert("30"));
    EXPECT_FALSE(longFirst.insert("301"));
    EXPECT_EQ(longFirst.extractAreaCode("30234"), "");
}

// The walk must answer as the tree defines it: the longest path, shortened until it is a code.
TEST(KesAreaCodeTree, ExtractAgreesWithShorteningThePath) {
    KesAreaCodeTree tree;
    KesCharsTree reference;
    for (const char* code : {"2", "30", "301", "3015", "40", "4711", "89", "891", "9", "99999"}) {
        tree.insert(code);
        reference.insert(code);
    }
    for (const char* number : {"2", "21", "3", "3012", "30159", "3016", "471", "47119", "4712", "8919",
                               "8929", "9999", "999999", "5", ""}) {
        std::string expected = reference.isPresent(number);
        while (!expected.empty() && !reference.isAreaCode(expected))
            expected.pop_back();
        EXPECT_EQ(tree.extractAreaCode(number), expected) << number;
    }
}

TEST(KesAreaCodeTree, MalformedDigitStrings) {
    KesAreaCodeTree tree;
    try {
        tree.insert("");
        ADD_FAILURE() << "no exception";
    } catch (const number_format_exception&) {
        ADD_FAILURE() << "not a malformed digit";
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "strDigits empty");
    }
    // The character code and the position are offsets into the literals, not written out.
    struct Case {
        std::string digits;
        const char* message;
    } cases[] = {{"3a1", "at position:  in :3a1"},
                 {"a", " at position:  in :a"},
                 {std::string("1\x05", 2), "ected digit:at position:  in :1\x05"},
                 {"12345678901234567x", " in :12345678901234567x"},
                 {"1\xe9", "at position:  in :1\xe9"}};
    for (const Case& c : cases) {
        try {
            tree.insert(c.digits);
            ADD_FAILURE() << "no exception for " << c.digits;
        } catch (const number_format_exception& e) {
            EXPECT_EQ(std::string(e.what()), c.message);
        }
    }
    EXPECT_EQ(tree.ToString().find('3'), std::string::npos) << "nothing of a refused code is stored";
}

TEST(KesAreaCodeTree, TracesInsertsOnlyWhileTracing) {
    {
        testhost::Tracing off(false);
        KesAreaCodeTree().insert("30");
        EXPECT_TRUE(testhost::lines().empty());
    }
    testhost::Tracing on;
    KesAreaCodeTree tree;
    tree.insert("30");
    tree.insert("30");
    EXPECT_TRUE(testhost::logged("DEBUG N9numbering15KesAreaCodeTreeE - KesAreaCodeTree()"));
    EXPECT_EQ(testhost::countLogged("Inserting '30' ..."), 2);
    EXPECT_TRUE(testhost::logged("Insert successful for '30'"));
    EXPECT_TRUE(testhost::logged("Insert failed for '30'"));
}
