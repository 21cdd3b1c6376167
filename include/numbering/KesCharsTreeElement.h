#ifndef NUMBERING_KESCHARSTREEELEMENT_H
#define NUMBERING_KESCHARSTREEELEMENT_H

#include "numbering/Export.h"
#include "numbering/ReferenceCount.h"

#include <Poco/HashMap.h>

#include <string>

class Logger;

namespace numbering {

/// One node of a KesCharsTree: the character it stands for, whether a stored code ends here, and
/// its children, at most one per character. A node owns its children and releases them when it
/// goes; the root holds the character 0.
class NUMBERING_API KesCharsTreeElement {
public:
    /// The children by character; each holds one reference owned by this node.
    using Children = Poco::HashMap<char, KesCharsTreeElement*>;

    /// A node for `character`, unflagged and without children.
    explicit KesCharsTreeElement(char character);
    /// Copies the whole subtree: the copy shares no node with `other`.
    KesCharsTreeElement(const KesCharsTreeElement& other);
    /// Drops this node's subtree and copies `other`'s in its place.
    KesCharsTreeElement& operator=(const KesCharsTreeElement& other);
    virtual ~KesCharsTreeElement();

    /// Takes over `node` (a chain or subtree that nobody else holds) below this node. When a child
    /// for its character already exists, the children of `node` are merged into that child and
    /// `node` itself is released. The flag of a merged node is not carried over, so a code ending
    /// on a node that already exists stays unflagged: codes must come shortest first.
    virtual void insert(KesCharsTreeElement* node);
    /// Adds `code` below this node, its last character flagged. An empty code changes nothing.
    virtual void insert(std::string code);
    /// ToString(0).
    virtual std::string ToString();
    /// The subtree as text, one node a line, children indented below their parent, sorted by
    /// character; flagged nodes carry " (true)".
    virtual std::string ToString(int level);
    /// The character this node stands for.
    virtual char getCharacter();
    /// The children, for reading.
    virtual Children& getElements();
    /// The child for `c`, or null.
    virtual KesCharsTreeElement* get(char c);
    /// Whether a stored code ends here.
    virtual bool isAreaCode();
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();

    /// Flags or unflags this node as the end of a stored code.
    void setAreaCode(bool flag);
    /// One line of the tree's text: indentation for `level`, then "Root : <n> stored codes" for the
    /// root (character 0) or the character, with " (true)" when a code ends there.
    static void appendTextLine(std::string& text, int level, char character, bool areaCode, int storedCodes);
    /// Flagged nodes below this one (not counting itself), over the whole subtree.
    int numberOfStoredCodes();

    /// Live nodes, for leak diagnostics.
    static int _count;
    /// The tree's traces.
    static Logger* logger;

    char character;    ///< the character this node stands for
    bool areaCode;     ///< a stored code ends here
    Children elements; ///< the children, owned

private:
    void copyChildrenOf(const KesCharsTreeElement& other);
    void releaseChildren();

    ReferenceCount<KesCharsTreeElement> references;
};

} // namespace numbering

#endif
