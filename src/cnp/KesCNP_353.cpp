#include "numbering/KesCNP_353.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_353::logger = Logger::getLogger(typeid(KesCNP_353).name());

KesCNP_353::KesCNP_353() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_353()");
}

KesCNP_353::~KesCNP_353() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_353::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
