#include "FixedLengthPlan.h"

#include "PlanText.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

namespace numbering {

namespace {

// The dialing rules are expected to hold the country; without it there is no prefix to add or to
// recognise.
std::string nationalPrefix(Generation* owner, const char* countryKey) {
    const Conversion conversion(owner);
    KesCountryRuleItem* rule = storeOf(conversion.generation()).findCountryRule(countryKey);
    return rule == nullptr ? std::string() : rule->getLongDistPrefix();
}

} // namespace

std::string makeFixedLengthCanonicalNumber(const FixedLengthPlan& plan, Generation* owner, Logger* logger,
                                           std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;

    // Any number of the national length is national, whatever its first digit.
    if (number.size() == plan.nationalLength)
        return plan.canonical(number);

    std::string natPfx = nationalPrefix(owner, plan.countryKey);
    if (natPfx.size() + number.size() == plan.nationalLength &&
        !(plan.completesOnlyUnprefixed && startsWith(number, natPfx)) && !rules->isLocalNumber(number) &&
        !rules->isExceptionNumber(number)) {
        if (Logger::m_Traces)
            logger->debug("National number without national prefix detected : '" + number + "'");
        return plan.canonical(natPfx + number);
    }

    std::string ext = rules->getExtPrefix();
    if (number.size() == plan.nationalLength + ext.size() && startsWith(number, ext)) {
        if (Logger::m_Traces)
            logger->debug("National number with external prefix detected : '" + number + "'");
        return plan.canonical(std::string_view(number).substr(ext.size()));
    }
    return number;
}

} // namespace numbering
