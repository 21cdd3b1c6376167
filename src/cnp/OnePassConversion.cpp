// The conversion of the plans that look at a number once, as it stands: a national number is
// split at its area code, a number without national prefix may be completed with the own one.
#include "PlanText.h"
#include "numbering/KesAreaCodePlan.h"

#include "numbering/Logger.h"

namespace numbering {

namespace {

bool localRuleApplies(KesAreaCodePlan::LocalRule rule, char first) {
    switch (rule) {
    case KesAreaCodePlan::LocalRule::AnyFirstDigit:
        return true;
    case KesAreaCodePlan::LocalRule::FirstDigitTwoToNine:
        return first >= '2' && first <= '9';
    case KesAreaCodePlan::LocalRule::None:
        break;
    }
    return false;
}

} // namespace

std::string KesAreaCodePlan::convertInOnePass(const OnePassRules& plan, const std::string& number,
                                              KesDialRulesItem* rules, Logger* planLogger) {
    if (!plantext::entered(number, rules, planLogger))
        return number;
    if (number.empty() || number.size() < plan.minimumLength)
        return number;
    std::string result;
    if (number[0] != '0') {
        if (!localRuleApplies(plan.localRule, number[0]) ||
            !completeWithOwnAreaCode(plan.callingCode, number, rules, result))
            result = number;
    } else {
        // Only one national prefix is taken off: an international "00" leaves its second '0'.
        result = placeAtAreaCode(plan.callingCode, std::string_view(number).substr(1), plan.unknownAreaForm,
                                 planLogger);
    }
    if (Logger::m_Traces)
        planLogger->debug(plan.closingTrace + result + "'");
    return result;
}

} // namespace numbering
