#include "numbering/KesDialable_54.h"

#include "cnp/PlanCache.h"
#include "lifecycle/Conversion.h"

#include "numbering/KesCNPManager.h"
#include "numbering/KesCNP_54.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <memory>
#include <typeinfo>

namespace numbering {

Logger* KesDialable_54::logger = Logger::getLogger(typeid(KesDialable_54).name());

KesDialable_54::KesDialable_54() = default;

std::string KesDialable_54::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                       KesCountryRuleItem* countryRule,
                                                       KesDialRulesItem* dialRules) {
    return MakeLocalOrLongDistDialableNumber(areaNatPfx, number, countryRule, dialRules);
}

std::string KesDialable_54::makeLocalDialableNumber(std::string& areaNatPfx, std::string& number,
                                                    KesCountryRuleItem* countryRule,
                                                    KesDialRulesItem* dialRules) {
    return MakeLocalOrLongDistDialableNumber(areaNatPfx, number, countryRule, dialRules);
}

std::string KesDialable_54::MakeLocalOrLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                              KesCountryRuleItem* countryRule,
                                                              KesDialRulesItem* dialRules) {
    std::string full;
    full += areaNatPfx;
    full += number;
    // Without the Argentine plan (or an installation to compare with) there is nothing to split by.
    const Conversion conversion(owner);
    auto* plan = dynamic_cast<KesCNP_54*>(planCacheOf(conversion.generation()).getCNP("AR"));
    std::unique_ptr<KesCNP_54::StrippedNumber> stripped(
        plan != nullptr && dialRules != nullptr ? plan->StripNbr(full, dialRules) : nullptr);
    if (!stripped) {
        if (Logger::m_Traces)
            logger->debug("makeLocalOrLongDistDialableNumber(Argentina): not possible to strip the number");
        return full;
    }
    std::string result;
    // An empty area is never the installation's own.
    if (stripped->area.empty() || stripped->area != dialRules->getAreaCode()) {
        result += countryRule->getLongDistPrefix();
        result += stripped->area;
    }
    if (stripped->mobile)
        result += KesCNP_54::PREFIX_MOBILE_NATIONAL;
    result += stripped->number;
    return result;
}

} // namespace numbering
