#include "numbering/KesCNP_31.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_31::logger = Logger::getLogger(typeid(KesCNP_31).name());

KesCNP_31::KesCNP_31() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_31()");
}

KesCNP_31::~KesCNP_31() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_31::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
