#include "numbering/KesCNP_61.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_61::logger = Logger::getLogger(typeid(KesCNP_61).name());

KesCNP_61::KesCNP_61() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_61()");
}

KesCNP_61::~KesCNP_61() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_61::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
