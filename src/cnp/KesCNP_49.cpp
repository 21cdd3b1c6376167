#include "numbering/KesCNP_49.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_49::logger = Logger::getLogger(typeid(KesCNP_49).name());

KesCNP_49::KesCNP_49() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_49()");
}

KesCNP_49::~KesCNP_49() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_49::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
