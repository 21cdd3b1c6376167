#include "numbering/KesCNP_1.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesCNP_1::logger = Logger::getLogger(typeid(KesCNP_1).name());

KesCNP_1::KesCNP_1() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_1()");
}

KesCNP_1::~KesCNP_1() = default;

// Placeholder until the plan's rules land: a plan that cannot place a number returns it unchanged.
std::string KesCNP_1::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem*) { return number; }

} // namespace numbering
