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

KesAreaCodeTree::KesAreaCodeTree() {
    if (Logger::m_Traces)
        logger->debug("KesAreaCodeTree()");
}

KesAreaCodeTree::~KesAreaCodeTree() = default;

bool KesAreaCodeTree::insert(std::string strDigits) {
    if (Logger::m_Traces)
        logger->debug("Inserting '" + strDigits + "' ...");
    if (strDigits.empty())
        throw std::invalid_argument("strDigits empty");
    for (std::string::size_type i = 0; i < strDigits.size(); ++i)
        if (strDigits[i] < '0' || strDigits[i] > '9')
            throw number_format_exception(malformedDigitMessage(strDigits, i));
    if (tree.isPresent(strDigits) == strDigits) {
        if (Logger::m_Traces)
            logger->debug("Insert failed for '" + strDigits + "'");
        return false;
    }
    tree.insert(strDigits);
    if (Logger::m_Traces)
        logger->debug("Insert successful for '" + strDigits + "'");
    return true;
}

std::string KesAreaCodeTree::extractAreaCode(std::string number) {
    number.resize(areaCodeLength(number));
    return number;
}

std::size_t KesAreaCodeTree::areaCodeLength(std::string_view number) {
    return tree.longestCodeLength(number);
}

std::string KesAreaCodeTree::ToString() {
    return tree.ToString();
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
