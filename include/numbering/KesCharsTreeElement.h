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
    using Children = Poco::HashMap<char, KesCharsTreeElement*>;

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
    virtual std::string ToString();
    /// The subtree as text, one node a line, children indented below their parent, sorted by
    /// character; flagged nodes carry " (true)".
    virtual std::string ToString(int level);
    virtual char getCharacter();
    virtual Children& getElements();
    /// The child for `c`, or null.
    virtual KesCharsTreeElement* get(char c);
    virtual bool isAreaCode();
    virtual void duplicate();
    virtual void release();

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

    char character;
    bool areaCode;
    Children elements;

private:
    void copyChildrenOf(const KesCharsTreeElement& other);
    void releaseChildren();

    ReferenceCount<KesCharsTreeElement> references;
};

} // namespace numbering

#endif
