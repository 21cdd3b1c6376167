#include "numbering/KesCNP_41.h"

#include "PlanText.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <string_view>
#include <typeinfo>

namespace numbering {

Logger* KesCNP_41::logger = Logger::getLogger(typeid(KesCNP_41).name());

KesCNP_41::KesCNP_41() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_41()");
}

KesCNP_41::~KesCNP_41() = default;

std::string KesCNP_41::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;

    std::string_view cur = number;
    if (cur.size() <= 8)
        return number;
    if (cur.size() >= 11) {
        // Only a national number of 9 or 10 characters behind the outside-line prefix is converted.
        std::string ext = rules->getExtPrefix();
        std::string_view::size_type behind = cur.size() - ext.size();
        if (!startsWith(cur, ext) || (behind != 9 && behind != 10))
            return number;
        cur.remove_prefix(ext.size());
    }

    if (cur.size() == 9) {
        if (!startsWith(cur, szLocalNumberPfx))
            return number;
        return CanonicalNumber::write("41", "1", cur.substr(2));
    }
    if (cur[0] != '0')
        return number;
    if (startsWith(cur, szFreePhonePfx)) {
        // Free-phone numbers are written "+41 800" with the digits straight after, without blank
        // or parentheses: deliberately unlike the area code forms, and kept so.
        return CanonicalNumber::writeWithoutArea("41", cur.substr(1));
    }
    return CanonicalNumber::write("41", cur.substr(1, 2), cur.substr(3));
}

} // namespace numbering
