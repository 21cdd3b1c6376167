#include "numbering/KesCharsTree.h"

#include "numbering/Logger.h"

#include <stdexcept>
#include <typeinfo>

namespace numbering {

Logger* KesCharsTree::logger = Logger::getLogger(typeid(KesCharsTree).name());

KesCharsTree::KesCharsTree() : root('\0') {
    if (Logger::m_Traces)
        logger->debug("KesCharsTree()");
}

KesCharsTree::~KesCharsTree() = default;

void KesCharsTree::insert(std::string code) {
    if (code.empty())
        throw std::invalid_argument(" Unexpected value:" + code);
    root.insert(code);
}

std::string KesCharsTree::isPresent(std::string s) {
    return isPresent(s, root);
}

std::string KesCharsTree::isPresent(std::string s, KesCharsTreeElement& from) {
    if (s.empty())
        return std::string();
    KesCharsTreeElement* child = from.get(s[0]);
    if (child == nullptr)
        return std::string();
    return s[0] + isPresent(s.substr(1), *child);
}

bool KesCharsTree::isAreaCode(std::string s) {
    if (isPresent(s) != s)
        return false;
    KesCharsTreeElement* node = &root;
    for (char c : s)
        node = node->get(c);
    return node->isAreaCode();
}

std::string KesCharsTree::ToString() {
    return root.ToString();
}

} // namespace numbering
