#include "numbering/KesCNP_54.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_54::logger = Logger::getLogger(typeid(KesCNP_54).name());

KesCNP_54::KesCNP_54() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_54()");
}

KesCNP_54::~KesCNP_54() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_54::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
