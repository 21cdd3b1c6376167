#include "numbering/KesCNP_33.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_33::logger = Logger::getLogger(typeid(KesCNP_33).name());

KesCNP_33::KesCNP_33() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_33()");
}

KesCNP_33::~KesCNP_33() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_33::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
