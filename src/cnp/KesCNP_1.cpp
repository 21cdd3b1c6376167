#include "numbering/KesCNP_1.h"

#include "PlanText.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <string_view>
#include <typeinfo>

namespace numbering {

Logger* KesCNP_1::logger = Logger::getLogger(typeid(KesCNP_1).name());

namespace {

// Area codes, exchange codes and local numbers never begin with these; as a leading character
// they are the long-distance or trunk prefix.
bool isZeroOrOne(char digit) {
    return digit == '0' || digit == '1';
}

} // namespace

KesCNP_1::KesCNP_1() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_1()");
}

KesCNP_1::~KesCNP_1() = default;

std::string KesCNP_1::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;

    // The outside-line prefix plays no part: only a single leading 0 or 1 is dropped.
    std::string_view cur = number;
    switch (cur.size()) {
    case 8:
    case 11:
        if (!isZeroOrOne(cur[0]))
            return number;
        cur.remove_prefix(1);
        break;
    case 7:
    case 10:
        break;
    default:
        return number;
    }

    if (cur.size() == 7) {
        if (isZeroOrOne(cur[0]))
            return number;
        // Without an own area code the local number still gets a canonical form, with a visible
        // "?" where the area code belongs.
        std::string area = rules->getAreaCode();
        return CanonicalNumber::write("1", area.empty() ? std::string_view("?") : std::string_view(area),
                                      cur);
    }
    if (isZeroOrOne(cur[0]) || isZeroOrOne(cur[3]))
        return number;
    return CanonicalNumber::write("1", cur.substr(0, 3), cur.substr(3));
}

} // namespace numbering
