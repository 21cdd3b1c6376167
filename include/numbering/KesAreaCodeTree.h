#ifndef NUMBERING_KESAREACODETREE_H
#define NUMBERING_KESAREACODETREE_H

#include "numbering/Export.h"
#include "numbering/KesCharsTree.h"
#include "numbering/ReferenceCount.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

/// The area codes of one country as a digit tree, answering which leading digits of a national
/// number form an area code. Built once (usually from the country's plan file), then only read.
///
/// The tree answers exactly as a KesCharsTree holding the same codes would (its text included), but
/// keeps its digits in two flat tables instead of one heap object with a hash map per node: a
/// country's few thousand codes take a few ten kilobytes, load without an allocation per digit, and
/// a look-up is one array step per digit.
class NUMBERING_API KesAreaCodeTree {
public:
    KesAreaCodeTree();
    KesAreaCodeTree(const KesAreaCodeTree&) = delete;
    KesAreaCodeTree& operator=(const KesAreaCodeTree&) = delete;
    virtual ~KesAreaCodeTree();

    /// Stores the digit string `strDigits`: true when added, false when it already is a path of
    /// the tree (a stored code or the beginning of a longer one, so shorter codes must come first).
    /// Throws std::invalid_argument "strDigits empty" for an empty string and
    /// number_format_exception for a character that is not a decimal digit.
    virtual bool insert(std::string strDigits);
    /// The longest stored area code that begins `number`, or "".
    virtual std::string extractAreaCode(std::string number);
    /// The tree as text, as KesCharsTreeElement::ToString(int) writes it.
    virtual std::string ToString();
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();

    /// The length of extractAreaCode(number), without building any string.
    std::size_t areaCodeLength(std::string_view number);

    /// Self-test: inserts a fixed list of codes and prints three extractions and the tree.
    static void main(std::string* args);

    /// Live trees, for leak diagnostics.
    static int _count;
    /// The tree's traces.
    static Logger* logger;

private:
    /// One digit of a stored path. The root is node 0, which no path returns to, so a child slot
    /// holding 0 is empty.
    struct Node {
        std::uint32_t children; // its block of ten child slots in `childBlocks`, or NO_CHILDREN
        bool areaCode;          // a stored code ends here
    };
    using ChildBlock = std::array<std::uint32_t, 10>;
    static const std::uint32_t NO_CHILDREN = 0xffffffffu;

    /// The node reached from `node` by the digit `c`, or 0.
    std::uint32_t child(std::uint32_t node, char c) const;
    void appendText(std::uint32_t node, char character, int level, std::string& text) const;
    int storedCodesBelow(std::uint32_t node) const;

    std::vector<Node> nodes;
    std::vector<ChildBlock> childBlocks;
    ReferenceCount<KesAreaCodeTree> references;
};

} // namespace numbering

#endif
