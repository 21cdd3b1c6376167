#include "numbering/KesCNP_64.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_64::logger = Logger::getLogger(typeid(KesCNP_64).name());

KesCNP_64::KesCNP_64() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_64()");
}

KesCNP_64::~KesCNP_64() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_64::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
