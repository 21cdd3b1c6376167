#include "numbering/KesCNP_57.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_57::logger = Logger::getLogger(typeid(KesCNP_57).name());

KesCNP_57::KesCNP_57() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_57()");
}

KesCNP_57::~KesCNP_57() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_57::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
