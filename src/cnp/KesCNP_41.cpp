#include "numbering/KesCNP_41.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_41::logger = Logger::getLogger(typeid(KesCNP_41).name());

KesCNP_41::KesCNP_41() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_41()");
}

KesCNP_41::~KesCNP_41() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_41::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
