#ifndef NUMBERING_KESCHARSTREE_H
#define NUMBERING_KESCHARSTREE_H

#include "numbering/Export.h"
#include "numbering/KesCharsTreeElement.h"

#include <string>

class Logger;

namespace numbering {

/// A prefix tree of character strings, one node per character, with a flag where a stored code
/// ends. Built once, then only read.
class NUMBERING_API KesCharsTree {
public:
    KesCharsTree();
    /// Copies are deep: the two trees share no node.
    KesCharsTree(const KesCharsTree& other) = default;
    /// Deep, as the copy.
    KesCharsTree& operator=(const KesCharsTree& other) = default;
    virtual ~KesCharsTree();

    /// Stores `code`; an empty code throws std::invalid_argument " Unexpected value:".
    virtual void insert(std::string code);
    /// The longest prefix of `s` that is a path from the root, flagged or not.
    virtual std::string isPresent(std::string s);
    /// The longest prefix of `s` that is a path from the node `from`.
    virtual std::string isPresent(std::string s, KesCharsTreeElement& from);
    /// True when `s` is exactly a stored code.
    virtual bool isAreaCode(std::string s);
    /// The tree as text (see KesCharsTreeElement::ToString(int)).
    virtual std::string ToString();

    /// The tree's traces.
    static Logger* logger;

    /// The root node, character 0.
    KesCharsTreeElement root;
};

} // namespace numbering

#endif
