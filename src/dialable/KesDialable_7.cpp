#include "numbering/KesDialable_7.h"

#include "config/Store.h"
#include "lifecycle/Conversion.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

Logger* KesDialable_7::logger = Logger::getLogger(typeid(KesDialable_7).name());

KesDialable_7::KesDialable_7() = default;

std::string KesDialable_7::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                      KesCountryRuleItem*, KesDialRulesItem*) {
    std::string result;
    result += areaNatPfx;
    result += number;
    // Without an "RU" row there is no prefix to add rather than a record to dereference.
    const Conversion conversion(owner);
    KesCountryRuleItem* russia = storeOf(conversion.generation()).findCountryRule("RU");
    std::string prefix = russia != nullptr ? russia->getLongDistPrefix() : std::string();
    if (prefix.size() + result.size() == 11)
        result.insert(0, prefix);
    if (Logger::m_Traces)
        logger->debug("7-RU makeLongDistDialableNumber() AreaNatPfx: '" + areaNatPfx + "' dest: " + number +
                      " result: " + result);
    return result;
}

} // namespace numbering
