#include "TestHost.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCharsTree.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace numbering;

namespace {

std::string randomDigits(std::mt19937& random, std::size_t longest) {
    std::string digits(1 + random() % longest, '0');
    for (char& c : digits)
        c = static_cast<char>('0' + random() % 4); // few digits, so that codes share their paths
    return digits;
}

/// The lines a scope logged, in order.
std::vector<std::string> linesOf(void (*build)()) {
    testhost::Tracing on;
    build();
    return testhost::lines();
}

} // namespace

// The area code tree keeps its codes in flat tables; it must answer, print and trace exactly as the
// character tree it stands for would, whatever the order of the codes.
TEST(KesAreaCodeTreeAsCharsTree, AnswersAndPrintsAsTheCharacterTree) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        KesAreaCodeTree tree;
        KesCharsTree reference;
        for (int code = 0; code < 30; ++code) {
            const std::string digits = randomDigits(random, 5);
            const bool isPath = reference.isPresent(digits) == digits;
            EXPECT_EQ(tree.insert(digits), !isPath) << digits;
            if (!isPath)
                reference.insert(digits);
        }
        EXPECT_EQ(tree.ToString(), reference.ToString());
        for (int number = 0; number < 30; ++number) {
            const std::string digits = randomDigits(random, 8) + (number % 5 == 0 ? "x1" : "");
            std::string expected = reference.isPresent(digits);
            while (!expected.empty() && !reference.isAreaCode(expected))
                expected.pop_back();
            EXPECT_EQ(tree.extractAreaCode(digits), expected) << digits;
            EXPECT_EQ(tree.areaCodeLength(digits), expected.size()) << digits;
        }
    }
}

TEST(KesAreaCodeTreeAsCharsTree, TracesItsInsertions) {
    // The tree traces its construction and every insertion; it makes no character tree nodes.
    const std::vector<std::string> traced = linesOf([] {
        KesAreaCodeTree tree;
        tree.insert("30");
        tree.insert("301");
        tree.insert("30");
    });
    const std::string area = "DEBUG N9numbering15KesAreaCodeTreeE - ";
    const std::vector<std::string> expected = {
        area + "KesAreaCodeTree()",           area + "Inserting '30' ...",
        area + "Insert successful for '30'",  area + "Inserting '301' ...",
        area + "Insert successful for '301'", area + "Inserting '30' ...",
        area + "Insert failed for '30'",
    };
    EXPECT_EQ(traced, expected);
}
