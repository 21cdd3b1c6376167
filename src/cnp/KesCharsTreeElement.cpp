#include "numbering/KesCharsTreeElement.h"

#include "numbering/Logger.h"

#include <algorithm>
#include <stdexcept>
#include <typeinfo>
#include <vector>

namespace numbering {

int KesCharsTreeElement::_count = 0;
Logger* KesCharsTreeElement::logger = Logger::getLogger(typeid(KesCharsTreeElement).name());

namespace {

const std::size_t BUCKETS = 64;

// Codes are area codes and operator prefixes, a few digits long. The walks and the destruction of a
// subtree recurse once per level, so an absurd code (a corrupt file) must not make the tree deep.
const std::string::size_type MAX_CODE_LENGTH = 64;

} // namespace

KesCharsTreeElement::KesCharsTreeElement(char c) : character(c), areaCode(false), elements(BUCKETS) {
    if (Logger::m_Traces)
        logger->debug("KesCharsTreeElement()");
}

KesCharsTreeElement::KesCharsTreeElement(const KesCharsTreeElement& other)
    : character(other.character), areaCode(other.areaCode), elements(BUCKETS) {
    copyChildrenOf(other);
}

KesCharsTreeElement& KesCharsTreeElement::operator=(const KesCharsTreeElement& other) {
    if (this == &other)
        return *this;
    // Copy first, so that assigning a node its own descendant still reads a live subtree.
    KesCharsTreeElement copy(other);
    releaseChildren();
    character = copy.character;
    areaCode = copy.areaCode;
    elements.swap(copy.elements);
    return *this;
}

KesCharsTreeElement::~KesCharsTreeElement() {
    releaseChildren();
}

void KesCharsTreeElement::copyChildrenOf(const KesCharsTreeElement& other) {
    try {
        for (const auto& child : other.elements)
            elements.insert(Children::ValueType(child.first, new KesCharsTreeElement(*child.second)));
    } catch (...) {
        releaseChildren();
        throw;
    }
}

void KesCharsTreeElement::releaseChildren() {
    for (auto& child : elements)
        child.second->release();
    elements.clear();
}

void KesCharsTreeElement::insert(KesCharsTreeElement* node) {
    if (node == nullptr)
        return;
    KesCharsTreeElement* existing = get(node->getCharacter());
    if (existing == nullptr) {
        try {
            elements.insert(Children::ValueType(node->getCharacter(), node));
        } catch (...) {
            node->release();
            throw;
        }
        return;
    }
    // Merging: the existing child keeps its own flag, whatever `node` says.
    for (auto& child : node->elements)
        existing->insert(child.second);
    node->elements.clear();
    node->release();
}

void KesCharsTreeElement::insert(std::string code) {
    if (code.empty())
        return;
    if (code.size() > MAX_CODE_LENGTH)
        throw std::length_error("Code longer than " + std::to_string(MAX_CODE_LENGTH) + " characters");
    // The chain is built from the last character back, so that its flagged end is made first.
    KesCharsTreeElement* head = nullptr;
    try {
        for (std::string::size_type i = code.size(); i-- > 0;) {
            KesCharsTreeElement* below = head;
            head = new KesCharsTreeElement(code[i]);
            if (below == nullptr)
                head->setAreaCode(true);
            else
                head->insert(below); // on failure it releases `below` itself
        }
    } catch (...) {
        if (head != nullptr)
            head->release();
        throw;
    }
    insert(head);
}

std::string KesCharsTreeElement::ToString() {
    return ToString(0);
}

std::string KesCharsTreeElement::ToString(int level) {
    std::string text;
    appendTextLine(text, level, character, areaCode, character == '\0' ? numberOfStoredCodes() : 0);
    // The hash map has no useful order: children are written sorted, so that the text is stable.
    std::vector<KesCharsTreeElement*> children;
    children.reserve(elements.size());
    for (auto& child : elements)
        children.push_back(child.second);
    std::sort(children.begin(), children.end(), [](KesCharsTreeElement* a, KesCharsTreeElement* b) {
        return static_cast<unsigned char>(a->character) < static_cast<unsigned char>(b->character);
    });
    for (KesCharsTreeElement* child : children)
        text += child->ToString(level + 1);
    return text;
}

void KesCharsTreeElement::appendTextLine(std::string& text, int level, char character, bool areaCode,
                                         int storedCodes) {
    text.append(static_cast<std::string::size_type>(std::max(level, 0)) * 2, ' ');
    if (character == '\0') {
        text += "Root : " + std::to_string(storedCodes) + " stored codes";
    } else {
        text += character;
        if (areaCode)
            text += " (true)";
    }
    text += '\n';
}

char KesCharsTreeElement::getCharacter() {
    return character;
}

KesCharsTreeElement::Children& KesCharsTreeElement::getElements() {
    return elements;
}

KesCharsTreeElement* KesCharsTreeElement::get(char c) {
    Children::Iterator found = elements.find(c);
    return found == elements.end() ? nullptr : found->second;
}

bool KesCharsTreeElement::isAreaCode() {
    return areaCode;
}

void KesCharsTreeElement::setAreaCode(bool flag) {
    areaCode = flag;
}

int KesCharsTreeElement::numberOfStoredCodes() {
    int stored = 0;
    for (auto& child : elements)
        stored += (child.second->isAreaCode() ? 1 : 0) + child.second->numberOfStoredCodes();
    return stored;
}

void KesCharsTreeElement::duplicate() {
    references.duplicate();
}

void KesCharsTreeElement::release() {
    if (references.release())
        delete this;
}

} // namespace numbering
