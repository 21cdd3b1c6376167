#include "numbering/KesCNP_52.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_52::logger = Logger::getLogger(typeid(KesCNP_52).name());

KesCNP_52::KesCNP_52() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_52()");
}

KesCNP_52::~KesCNP_52() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_52::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
