#ifndef NUMBERING_KESAREACODETREE_H
#define NUMBERING_KESAREACODETREE_H

#include "numbering/KesCharsTree.h"
#include "numbering/ReferenceCount.h"

#include <cstddef>
#include <string>
#include <string_view>

class Logger;

namespace numbering {

/// The area codes of one country as a digit tree, answering which leading digits of a national
/// number form an area code. Built once (usually from the country's plan file), then only read.
class KesAreaCodeTree {
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
    virtual std::string ToString();
    virtual void duplicate();
    virtual void release();

    /// The length of extractAreaCode(number), without building any string.
    std::size_t areaCodeLength(std::string_view number);

    /// Self-test: inserts a fixed list of codes and prints three extractions and the tree.
    static void main(std::string* args);

    /// Live trees, for leak diagnostics.
    static int _count;
    static Logger* logger;

private:
    KesCharsTree tree;
    ReferenceCount<KesAreaCodeTree> references;
};

} // namespace numbering

#endif
