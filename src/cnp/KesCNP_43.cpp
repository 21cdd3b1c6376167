#include "numbering/KesCNP_43.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_43::logger = Logger::getLogger(typeid(KesCNP_43).name());

KesCNP_43::KesCNP_43() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_43()");
}

KesCNP_43::~KesCNP_43() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_43::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
