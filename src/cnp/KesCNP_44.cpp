#include "numbering/KesCNP_44.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_44::logger = Logger::getLogger(typeid(KesCNP_44).name());

KesCNP_44::KesCNP_44() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_44()");
}

KesCNP_44::~KesCNP_44() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_44::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
