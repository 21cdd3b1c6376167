#include "numbering/KesCharsTree.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace numbering;

TEST(KesCharsTree, OnlyCodesInsertedShortestFirstAreFlagged) {
    KesCharsTree shortFirst;
    shortFirst.insert("89");
    shortFirst.insert("891");
    shortFirst.insert("89");
    EXPECT_EQ(shortFirst.isPresent("8912345"), "891");
    EXPECT_EQ(shortFirst.isPresent("7"), "");
    EXPECT_TRUE(shortFirst.isAreaCode("89"));
    EXPECT_TRUE(shortFirst.isAreaCode("891"));
    EXPECT_FALSE(shortFirst.isAreaCode("8"));
    EXPECT_FALSE(shortFirst.isAreaCode("8912")) << "not a path";
    EXPECT_EQ(shortFirst.root.numberOfStoredCodes(), 2);

    KesCharsTree longFirst;
    for (const char* code : {"891", "89", "8"})
        longFirst.insert(code);
    EXPECT_FALSE(longFirst.isAreaCode("89"));
    EXPECT_FALSE(longFirst.isAreaCode("8"));
    EXPECT_EQ(longFirst.root.numberOfStoredCodes(), 1);
}

TEST(KesCharsTree, EmptyCodeIsRejected) {
    KesCharsTree tree;
    try {
        tree.insert("");
        FAIL() << "no exception";
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), " Unexpected value:");
    }
    tree.root.insert(std::string());
    EXPECT_TRUE(tree.root.getElements().empty());
}

// The tree's walks recurse once per level: a corrupt file's megabyte "code" must not make it deep.
TEST(KesCharsTree, AbsurdlyLongCodeIsRejected) {
    KesCharsTree tree;
    tree.insert(std::string(64, '1'));
    EXPECT_THROW(tree.insert(std::string(65, '2')), std::length_error);
    EXPECT_THROW(tree.insert(std::string(1 << 20, '3')), std::length_error);
    EXPECT_EQ(tree.root.numberOfStoredCodes(), 1);
    EXPECT_EQ(tree.isPresent(std::string(100, '1')), std::string(64, '1'));
}

TEST(KesCharsTree, NodesAreOwnedOnceAndFreedWithTheLastReference) {
    int before = KesCharsTreeElement::_count;
    KesCharsTreeElement* kept = nullptr;
    {
        KesCharsTree tree;
        tree.insert("12");
        // A chain 1 -> 3 merges below the existing 1, which keeps its place; the chain's 1 is freed.
        KesCharsTreeElement* one = new KesCharsTreeElement('1');
        KesCharsTreeElement* three = new KesCharsTreeElement('3');
        three->setAreaCode(true);
        one->insert(three);
        tree.root.insert(one);
        EXPECT_EQ(KesCharsTreeElement::_count, before + 4) << "root, 1, 2, 3";
        EXPECT_TRUE(tree.isAreaCode("13"));

        KesCharsTree copy(tree);
        copy.insert("14");
        KesCharsTree assigned;
        assigned.insert("99");
        assigned = tree;
        tree.insert("15");
        EXPECT_FALSE(tree.isAreaCode("14"));
        EXPECT_TRUE(copy.isAreaCode("12") && copy.isAreaCode("14") && !copy.isAreaCode("15"));
        EXPECT_TRUE(assigned.isAreaCode("13") && !assigned.isAreaCode("99"));

        kept = tree.root.get('1');
        kept->duplicate();
    }
    EXPECT_EQ(KesCharsTreeElement::_count, before + 4) << "1 and its children 2, 3, 5 outlive the tree";
    kept->release();
    EXPECT_EQ(KesCharsTreeElement::_count, before);
}

TEST(KesCharsTree, TextShowsEveryNodeSortedWithFlagsAndIndentation) {
    KesCharsTree tree;
    for (const char* code : {"21", "1", "12"})
        tree.insert(code);
    std::string text = tree.ToString();
    EXPECT_EQ(text.rfind("Root : ", 0), 0u);
    std::size_t afterRoot = text.find('\n');
    EXPECT_EQ(text.substr(afterRoot), "\n  1 (true)\n    2 (true)\n  2\n    1 (true)\n");
}
