#include "numbering/KesAreaCodeTree.h"

#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include <cstring>
#include <iostream>
#include <stdexcept>
#include <typeinfo>

namespace numbering {

int KesAreaCodeTree::_count = 0;
Logger* KesAreaCodeTree::logger = Logger::getLogger(typeid(KesAreaCodeTree).name());

namespace {

// The text of `literal` from `offset` on; nothing where the offset falls outside it.
std::string literalFrom(const char* literal, long offset) {
    if (offset < 0 || static_cast<std::size_t>(offset) > std::strlen(literal))
        return std::string();
    return std::string(literal + offset);
}

// The malformed-digit message keeps its historical shape: the character code and the position
// are used as offsets into the two literals instead of being written out, so neither appears.
std::string malformedDigitMessage(const std::string& digits, std::string::size_type position) {
    return literalFrom("Unexpected digit:", digits[position]) +
           literalFrom(" at position: ", static_cast<long>(position)) + " in :" + digits;
}

} // namespace

KesAreaCodeTree::KesAreaCodeTree() : nodes(1, Node{NO_CHILDREN, false}) {
    if (Logger::m_Traces)
        logger->debug("KesAreaCodeTree()");
}

KesAreaCodeTree::~KesAreaCodeTree() = default;

std::uint32_t KesAreaCodeTree::child(std::uint32_t node, char c) const {
    const std::uint32_t block = nodes[node].children;
    if (block == NO_CHILDREN || c < '0' || c > '9')
        return 0;
    return childBlocks[block][static_cast<std::size_t>(c - '0')];
}

bool KesAreaCodeTree::insert(std::string strDigits) {
    if (Logger::m_Traces)
        logger->debug("Inserting '" + strDigits + "' ...");
    if (strDigits.empty())
        throw std::invalid_argument("strDigits empty");
    for (std::string::size_type i = 0; i < strDigits.size(); ++i)
        if (strDigits[i] < '0' || strDigits[i] > '9')
            throw number_format_exception(malformedDigitMessage(strDigits, i));
    // One walk down the existing path, which plans build by the thousand at their first use.
    std::uint32_t node = 0;
    std::size_t existing = 0;
    for (std::uint32_t block; existing < strDigits.size() && (block = nodes[node].children) != NO_CHILDREN;
         ++existing) {
        const std::uint32_t next = childBlocks[block][static_cast<std::size_t>(strDigits[existing] - '0')];
        if (next == 0)
            break;
        node = next;
    }
    // Already a path (a stored code, or the beginning of a longer one): shorter codes come first.
    if (existing == strDigits.size()) {
        if (Logger::m_Traces)
            logger->debug("Insert failed for '" + strDigits + "'");
        return false;
    }
    for (std::size_t i = existing; i < strDigits.size(); ++i) {
        if (nodes[node].children == NO_CHILDREN) {
            childBlocks.push_back(ChildBlock{});
            nodes[node].children = static_cast<std::uint32_t>(childBlocks.size() - 1);
        }
        const std::uint32_t added = static_cast<std::uint32_t>(nodes.size());
        nodes.push_back(Node{NO_CHILDREN, false});
        childBlocks[nodes[node].children][static_cast<std::size_t>(strDigits[i] - '0')] = added;
        node = added;
    }
    nodes[node].areaCode = true;
    if (Logger::m_Traces)
        logger->debug("Insert successful for '" + strDigits + "'");
    return true;
}

std::string KesAreaCodeTree::extractAreaCode(std::string number) {
    number.resize(areaCodeLength(number));
    return number;
}

std::size_t KesAreaCodeTree::areaCodeLength(std::string_view number) {
    std::size_t longest = 0;
    std::uint32_t node = 0;
    for (std::size_t i = 0; i < number.size(); ++i) {
        node = child(node, number[i]);
        if (node == 0)
            break;
        if (nodes[node].areaCode)
            longest = i + 1;
    }
    return longest;
}

int KesAreaCodeTree::storedCodesBelow(std::uint32_t node) const {
    int stored = 0;
    for (char c = '0'; c <= '9'; ++c)
        if (std::uint32_t below = child(node, c))
            stored += (nodes[below].areaCode ? 1 : 0) + storedCodesBelow(below);
    return stored;
}

void KesAreaCodeTree::appendText(std::uint32_t node, char character, int level, std::string& text) const {
    KesCharsTreeElement::appendTextLine(text, level, character, nodes[node].areaCode,
                                        node == 0 ? storedCodesBelow(0) : 0);
    for (char c = '0'; c <= '9'; ++c)
        if (std::uint32_t below = child(node, c))
            appendText(below, c, level + 1, text);
}

std::string KesAreaCodeTree::ToString() {
    std::string text;
    appendText(0, '\0', 0, text);
    return text;
}

void KesAreaCodeTree::duplicate() {
    references.duplicate();
}

void KesAreaCodeTree::release() {
    if (references.release())
        delete this;
}

void KesAreaCodeTree::main(std::string* /*args*/) {
    static const char* const CODES[] = {"123",    "126",   "1234",     "235",     "456",    "789",
                                        "123456", "45698", "11234556", "7894614", "4711417"};
    static const char* const NUMBERS[] = {"123456789", "123056789", "987654321"};
    KesAreaCodeTree tree;
    for (const char* code : CODES)
        tree.insert(code);
    for (const char* number : NUMBERS)
        std::cout << "Extract area code from '" << number << "' : " << tree.extractAreaCode(number)
                  << std::endl;
    std::cout << tree.ToString() << std::flush;
}

} // namespace numbering
