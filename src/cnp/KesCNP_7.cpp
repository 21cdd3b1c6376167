#include "numbering/KesCNP_7.h"

#include "FixedLengthPlan.h"
#include "PlanText.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>
#include <utility>

namespace numbering {

Logger* KesCNP_7::logger = Logger::getLogger(typeid(KesCNP_7).name());

namespace {

// The national prefix is dropped and the three-digit area code goes in the parentheses.
std::string russianCanonical(std::string_view national) {
    return CanonicalNumber::write("7", national.substr(1, 3), national.substr(4));
}

// Length alone decides: a ten-character number beginning with the prefix is completed too.
const FixedLengthPlan RUSSIA = {"RU", 11, false, russianCanonical};

} // namespace

KesCNP_7::KesCNP_7() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_7()");
}

KesCNP_7::~KesCNP_7() = default;

std::string KesCNP_7::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    return makeFixedLengthCanonicalNumber(RUSSIA, owner, logger, std::move(number), rules);
}

} // namespace numbering
