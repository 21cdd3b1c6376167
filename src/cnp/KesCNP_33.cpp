#include "numbering/KesCNP_33.h"

#include "FixedLengthPlan.h"
#include "PlanText.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>
#include <utility>

namespace numbering {

Logger* KesCNP_33::logger = Logger::getLogger(typeid(KesCNP_33).name());

namespace {

// The national prefix stays in the parentheses, the rest is the subscriber number.
std::string frenchCanonical(std::string_view national) {
    return CanonicalNumber::write("33", national.substr(0, 1), national.substr(1));
}

const FixedLengthPlan FRANCE = {"FR", 10, true, frenchCanonical};

} // namespace

KesCNP_33::KesCNP_33() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_33()");
}

KesCNP_33::~KesCNP_33() = default;

std::string KesCNP_33::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return makeFixedLengthCanonicalNumber(FRANCE, owner, logger, std::move(number), rules);
}

} // namespace numbering
