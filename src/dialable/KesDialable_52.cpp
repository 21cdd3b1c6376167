#include "numbering/KesDialable_52.h"

#include "common/NumberText.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

std::string KesDialable_52::PREFIX_MOBILE = "1";
std::string KesDialable_52::PREFIX_MOBILE_LOCAL = "044";
std::string KesDialable_52::PREFIX_MOBILE_DISTANT = "045";
Logger* KesDialable_52::logger = Logger::getLogger(typeid(KesDialable_52).name());

KesDialable_52::KesDialable_52() = default;

std::string KesDialable_52::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                       KesCountryRuleItem* countryRule,
                                                       KesDialRulesItem* dialRules) {
    std::string result;
    if (startsWith(areaNatPfx, PREFIX_MOBILE)) {
        // The area code behind the mobile marker decides between the local and the distant form.
        std::string::size_type areaStart = PREFIX_MOBILE.size();
        bool ownArea = dialRules != nullptr &&
                       areaNatPfx.compare(areaStart, std::string::npos, dialRules->getAreaCode()) == 0;
        result += ownArea ? PREFIX_MOBILE_LOCAL : PREFIX_MOBILE_DISTANT;
        result.append(areaNatPfx, areaStart, std::string::npos);
    } else {
        result += countryRule->getLongDistPrefix();
        result += areaNatPfx;
    }
    result += number;
    if (Logger::m_Traces)
        logger->debug("52-MX makeLongDistDialableNumber() AreaNatPfx: '" + areaNatPfx + "' dest: " + number +
                      " result: " + result);
    return result;
}

} // namespace numbering
