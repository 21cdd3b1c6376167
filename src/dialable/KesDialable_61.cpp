#include "numbering/KesDialable_61.h"

#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesDialable_61::logger = Logger::getLogger(typeid(KesDialable_61).name());

KesDialable_61::KesDialable_61() = default;

std::string KesDialable_61::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                       KesCountryRuleItem*, KesDialRulesItem*) {
    std::string result;
    result += areaNatPfx;
    result += number;
    // The trunk prefix is always "0" here, whatever the country rule says.
    if (result.empty() || (result[0] != '1' && result[0] != '0'))
        result.insert(0, 1, '0');
    if (Logger::m_Traces)
        logger->debug("61-AU makeLongDistDialableNumber() AreaNatPfx: '" + areaNatPfx + "' dest: " + number +
                      " result: " + result);
    return result;
}

} // namespace numbering
