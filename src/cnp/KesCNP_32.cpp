#include "numbering/KesCNP_32.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_32::logger = Logger::getLogger(typeid(KesCNP_32).name());

KesCNP_32::KesCNP_32() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_32()");
}

KesCNP_32::~KesCNP_32() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_32::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
