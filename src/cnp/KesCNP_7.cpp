#include "numbering/KesCNP_7.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_7::logger = Logger::getLogger(typeid(KesCNP_7).name());

KesCNP_7::KesCNP_7() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_7()");
}

KesCNP_7::~KesCNP_7() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_7::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
