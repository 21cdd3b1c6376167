// The area code tree and the character tree it stands for.

#include "Suite.h"

#include <random>

namespace {

std::string randomDigits(std::mt19937& random, std::size_t longest) {
    std::string digits(1 + random() % longest, '0');
    for (char& c : digits)
        c = static_cast<char>('0' + random() % 4); // few digits, so that codes share their paths
    return digits;
}

template <class Exception, class Tree> std::string thrownBy(Tree& tree, const std::string& code) {
    return testhost::thrownText<Exception>([&] { tree.insert(code); });
}

} // namespace

TEST(KesCharsTree, OnlyCodesInsertedShortestFirstAreFlagged) {
    KesCharsTree shortFirst;
    for (const char* code : {"89", "891", "89"})
        shortFirst.insert(code);
    EXPECT_EQ(shortFirst.isPresent("8912345"), "891");
    EXPECT_EQ(shortFirst.isPresent("7"), "");
    EXPECT_TRUE(shortFirst.isAreaCode("89") && shortFirst.isAreaCode("891"));
    EXPECT_FALSE(shortFirst.isAreaCode("8"));
    EXPECT_FALSE(shortFirst.isAreaCode("8912")) << "not a path";
    EXPECT_EQ(shortFirst.root.numberOfStoredCodes(), 2);

    KesCharsTree longFirst;
    for (const char* code : {"891", "89", "8"})
        longFirst.insert(code);
    EXPECT_FALSE(longFirst.isAreaCode("89") || longFirst.isAreaCode("8"));
    EXPECT_EQ(longFirst.root.numberOfStoredCodes(), 1);

    // Copies are trees of their own.
    KesCharsTree copy(shortFirst), assigned;
    assigned.insert("99");
    assigned = shortFirst;
    copy.insert("14");
    EXPECT_FALSE(shortFirst.isAreaCode("14"));
    EXPECT_TRUE(assigned.isAreaCode("891") && !assigned.isAreaCode("99"));
}

TEST(KesCharsTree, EmptyAndAbsurdlyLongCodesAreRejected) {
    KesCharsTree tree;
    EXPECT_EQ(thrownBy<std::invalid_argument>(tree, ""), " Unexpected value:");
    // The tree's walks recurse once per level: a corrupt file's megabyte "code" must not make it deep.
    tree.insert(std::string(64, '1'));
    EXPECT_THROW(tree.insert(std::string(65, '2')), std::length_error);
    EXPECT_THROW(tree.insert(std::string(1 << 20, '3')), std::length_error);
    EXPECT_EQ(tree.root.numberOfStoredCodes(), 1);
    EXPECT_EQ(tree.isPresent(std::string(100, '1')), std::string(64, '1'));
}

// The flat tables of the area code tree answer and print as the character tree they stand for,
// whatever the order of the codes.
TEST(KesAreaCodeTree, AnswersAndPrintsAsTheCharacterTree) {
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

TEST(KesAreaCodeTree, MalformedDigitStrings) {
    KesAreaCodeTree tree;
    EXPECT_EQ(thrownBy<std::invalid_argument>(tree, ""), "strDigits empty");
    // The character code and the position are offsets into the literals, not written out.
    struct Case {
        std::string digits;
        const char* message;
    } cases[] = {{"3a1", "at position:  in :3a1"},
                 {"a", " at position:  in :a"},
                 {std::string("1\x05", 2), "ected digit:at position:  in :1\x05"},
                 {"12345678901234567x", " in :12345678901234567x"},
                 {"1\xe9", "at position:  in :1\xe9"}};
    for (const Case& c : cases)
        EXPECT_EQ(thrownBy<number_format_exception>(tree, c.digits), c.message);
    EXPECT_EQ(tree.ToString().find('3'), std::string::npos) << "nothing of a refused code is stored";
}

TEST(KesAreaCodeTree, TracesItsInserts) {
    const std::string area = "DEBUG N9numbering15KesAreaCodeTreeE - ";
    testhost::Tracing on;
    {
        KesAreaCodeTree tree;
        for (const char* code : {"30", "301", "30"})
            tree.insert(code);
    }
    std::vector<std::string> traced;
    for (const std::string& line : testhost::lines())
        if (line.rfind(area, 0) == 0)
            traced.push_back(line.substr(area.size()));
    EXPECT_EQ(traced, (std::vector<std::string>{"KesAreaCodeTree()", "Inserting '30' ...",
                                                "Insert successful for '30'", "Inserting '301' ...",
                                                "Insert successful for '301'", "Inserting '30' ...",
                                                "Insert failed for '30'"}));
}
