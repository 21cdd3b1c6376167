// The conversion of the plans that look at a number twice: first as it stands, then behind the
// installation's outside-line prefix.
#include "PlanText.h"
#include "numbering/KesAreaCodePlan.h"

#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <algorithm>

namespace numbering {

namespace {

// Behind the outside-line prefix at most this many characters are taken for a number.
const std::size_t LONGEST_BEHIND_PREFIX = 16;
// Numbers, national numbers and the subscriber numbers behind an area code are at least this long.
const std::size_t SHORTEST = 3;

} // namespace

// The national check of one pass; `withPrefix` begins with the national prefix '0'.
bool KesAreaCodePlan::placeNational(const TwoPassRules& plan, std::string_view withPrefix,
                                    KesDialRulesItem* rules, Logger* planLogger, std::string& result) {
    std::string_view national = withPrefix.substr(1);
    std::size_t n = national.size();
    // A second '0' is an international prefix, not a national number.
    if (n == 0 || national[0] == '0' || n < SHORTEST || n < static_cast<std::size_t>(maxAreaCodeLength))
        return false;
    std::size_t areaLength = areaCodeAt(national, planLogger);
    if (areaLength == 0) {
        if (plan.unknownAreaCode == UnknownAreaCode::OwnAreaCodeInFront) {
            // Deliberately the whole national number behind the own area code, even an empty one.
            result = canonical(plan.callingCode, rules->getAreaCode(), national);
            return true;
        }
        areaLength = std::min<std::size_t>(4, n);
    }
    if (n - areaLength < SHORTEST)
        return false;
    result = canonical(plan.callingCode, national.substr(0, areaLength), national.substr(areaLength));
    return true;
}

std::string KesAreaCodePlan::convertInTwoPasses(const TwoPassRules& plan, const std::string& number,
                                                KesDialRulesItem* rules, Logger* planLogger) {
    if (!plantext::entered(number, rules, planLogger))
        return number;
    if (number.size() < SHORTEST)
        return number;
    std::string result;
    // Pass 1: a national number as it stands. Its local rule never completes anything: a number
    // without national prefix may still carry the outside-line prefix, which pass 2 looks for.
    if (number[0] == '0' && placeNational(plan, number, rules, planLogger, result))
        return result;

    // Pass 2: behind the outside-line prefix, when what follows it is long enough to be a number.
    std::string prefix = rules->getExtPrefix();
    std::string_view current = number;
    if (number.size() > prefix.size() + 2 && startsWith(number, prefix) &&
        number.size() - prefix.size() <= LONGEST_BEHIND_PREFIX) {
        current.remove_prefix(prefix.size());
        if (current[0] == '0')
            return placeNational(plan, current, rules, planLogger, result) ? std::move(result) : number;
    }
    return completeWithOwnAreaCode(plan.callingCode, current, rules, result) ? std::move(result) : number;
}

} // namespace numbering
