#include "numbering/KesCNP_64.h"

#include "PlanText.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <string_view>
#include <typeinfo>

namespace numbering {

Logger* KesCNP_64::logger = Logger::getLogger(typeid(KesCNP_64).name());

namespace {

const char NATIONAL_PREFIX = '0';

// One range of national numbers: its leading digits (national prefix included), how many digits
// after the prefix form the code written in parentheses, and the lengths it comes in (prefix
// included). Every canonical form "+64 (code) rest" dials back as "0" + code + rest.
struct Range {
    const char* leading;
    std::string_view::size_type codeLength;
    std::string_view::size_type shortest;
    std::string_view::size_type longest;
};

// The first range whose leading digits match decides, so the longer leading digits come first
// (0900 is a premium-rate number, not an Auckland one).
const Range RANGES[] = {
    // Free-phone and premium-rate services: the service code stands in for the area code.
    {"0800", 3, 10, 11},
    {"0508", 3, 10, 10},
    {"0900", 3, 9, 9},
    // Scott Base, Antarctica: 0240 and five digits.
    {"0240", 3, 9, 9},
    // Mobile networks: 02x and six to eight digits.
    {"020", 2, 9, 11},
    {"021", 2, 9, 11},
    {"022", 2, 9, 11},
    {"026", 2, 9, 11},
    {"027", 2, 9, 11},
    {"028", 2, 9, 11},
    {"029", 2, 9, 11},
    // Fixed lines: one-digit area code and a seven-digit subscriber number.
    {"03", 1, 9, 9},
    {"04", 1, 9, 9},
    {"06", 1, 9, 9},
    {"07", 1, 9, 9},
    {"09", 1, 9, 9},
};

const std::string_view::size_type LOCAL_LENGTH = 7;

bool isGeographicAreaCode(std::string_view area) {
    return area.size() == 1 && std::string_view("34679").find(area[0]) != std::string_view::npos;
}

// A local number is completed only with a one-digit geographic area code of the installation
// (written with or without its national prefix); local numbers never begin with 0 or 1.
std::string localCanonical(std::string_view number, KesDialRulesItem* rules) {
    if (number[0] == '0' || number[0] == '1')
        return std::string();
    std::string own = rules->getAreaCode();
    std::string_view area = own;
    if (!area.empty() && area[0] == NATIONAL_PREFIX)
        area.remove_prefix(1);
    if (!isGeographicAreaCode(area))
        return std::string();
    return CanonicalNumber::write("64", area, number);
}

// The canonical form of a national or local number, or "" when no range holds it.
std::string canonical(std::string_view number, KesDialRulesItem* rules) {
    if (number.size() == LOCAL_LENGTH)
        return localCanonical(number, rules);
    for (const Range& range : RANGES) {
        if (!startsWith(number, range.leading))
            continue;
        if (number.size() < range.shortest || number.size() > range.longest)
            return std::string();
        return CanonicalNumber::write("64", number.substr(1, range.codeLength),
                                      number.substr(1 + range.codeLength));
    }
    return std::string();
}

} // namespace

KesCNP_64::KesCNP_64() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_64()");
}

KesCNP_64::~KesCNP_64() = default;

std::string KesCNP_64::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;
    // Service codes and anything else that is not plain digits are not numbers of the plan.
    if (number.empty() || !allDigits(number))
        return number;

    std::string result = canonical(number, rules);
    if (result.empty()) {
        // The number as dialled on an outside line: the same shapes behind the outside-line prefix.
        std::string ext = rules->getExtPrefix();
        if (!ext.empty() && startsWith(number, ext)) {
            result = canonical(std::string_view(number).substr(ext.size()), rules);
            if (!result.empty() && Logger::m_Traces)
                logger->debug("Number with external prefix detected : '" + number + "'");
        }
    }
    if (result.empty())
        return number;
    return result;
}

} // namespace numbering
