#include "numbering/KesCNP_57.h"

#include "PlanText.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <string_view>
#include <typeinfo>

namespace numbering {

Logger* KesCNP_57::logger = Logger::getLogger(typeid(KesCNP_57).name());
std::string KesCNP_57::CNP_FILE = KesNumberingConfig::configFile(KesCNPRegistry::installationFile("57"));
std::string KesCNP_57::CNP_DEFAULT_FILE = KesNumberingConfig::configFile(KesCNPRegistry::defaultFile("57"));

namespace {

// The canonical form of `number`, or "" when it has none of the Colombian shapes.
std::string canonical(std::string_view number, KesDialRulesItem* rules) {
    std::string_view::size_type n = number.size();
    if (n == 7) {
        // No check that the installation has an area code: an empty one gives "+57 () ...".
        std::string own = rules->getAreaCode();
        return CanonicalNumber::write("57", own, number);
    }
    if (n < 10 || number[0] != '0')
        return std::string();
    // After the national prefix: "3" and the mobile prefix, or a one-digit carrier and the area
    // code (ten characters), or a three-digit carrier code and the area code (longer numbers).
    if (number[1] == '3')
        return CanonicalNumber::write("57", number.substr(2, 3), number.substr(5));
    if (n == 10)
        return CanonicalNumber::write("57", number.substr(2, 1), number.substr(3));
    return CanonicalNumber::write("57", number.substr(4, 1), number.substr(5));
}

} // namespace

KesCNP_57::KesCNP_57() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_57()");
}

KesCNP_57::~KesCNP_57() {
    if (Logger::m_Traces)
        logger->debug("KesCNP_57: Destruct");
}

std::string KesCNP_57::dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) {
    if (!plantext::entered(number, rules, logger))
        return number;
    std::string result = canonical(number, rules);
    // The trace names Argentina although this is the Colombian plan; the text is kept as it stands.
    if (Logger::m_Traces)
        logger->debug("DlrArgentinaMakeCanonicalNumber('" + number + "', '" + rules->ToString() +
                      "') = " + (result.empty() ? number : result));
    if (result.empty())
        return number;
    return result;
}

} // namespace numbering
