#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "Explaining.h"
#include "FacadeInternals.h"
#include "common/CanonicalNumber.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <algorithm>

namespace numbering {

std::string KesNumberingRules::makeDialableNumber(KesDialRulesItem* myKesDialRulesItem,
                                                  std::string strCanPhoneNumber) {
    const Conversion conversion;
    Generation& generation = conversion.generation();
    const std::string countryId = myKesDialRulesItem->getCountryId();
    const std::vector<std::string>& areaCodes = myKesDialRulesItem->getAreaCodesList();
    if (Logger::m_Traces)
        logger->debug("makeDialableNumber('" + countryId + "', '" +
                      (areaCodes.empty() ? "" : areaCodes.front()) + "', '" + strCanPhoneNumber + "')");
    KesCountryRuleItem* countryRule = storeOf(generation).findCountryRule(countryId);
    if (countryRule == nullptr) {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules:makePhoneNumber no rules defined for this country : " +
                          countryId);
        return strCanPhoneNumber;
    }
    // Not in canonical form: passes through untouched. A leading blank counts as a "+".
    const char first = strCanPhoneNumber.at(0);
    if (first != '+' && first != ' ')
        return strCanPhoneNumber;

    // "+49 (89) 123456": country "49", area or national prefix "89", subscriber "123456".
    const CanonicalNumber parts =
        CanonicalNumber::readDigitRuns(strCanPhoneNumber, KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
    std::string country(parts.country);
    std::string areaNatPfx(parts.area);
    std::string number;
    parts.appendSubscriberDigits(number);
    if (Logger::m_Traces)
        logger->debug("Country : '" + country + "', Area/Nat Pfx : '" + areaNatPfx + "', Number : '" +
                      number + "'");
    // The installation's country chooses the strategy, never the destination's.
    const std::string& countryNumber = countryRule->countryNumberText();
    KesDialable* dialable = requireDialable(generation, countryNumber);
    // A number too long to be dialled, or one without a subscriber number, has no dialable form.
    if (strCanPhoneNumber.size() >=
            static_cast<std::string::size_type>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH) ||
        number.empty())
        return std::string();

    std::string dialled;
    KesExplanation::Route route;
    if (countryNumber != country) {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules : makePhoneNumber International");
        dialled = dialable->makeInternationalDialableNumber(country, areaNatPfx, number, countryRule);
        route = KesExplanation::Route::International;
    } else if (std::find(areaCodes.begin(), areaCodes.end(), areaNatPfx) != areaCodes.end()) {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules : makePhoneNumber local with area code");
        dialled = dialable->makeLocalDialableNumber(areaNatPfx, number, countryRule);
        route = KesExplanation::Route::Local;
    } else {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules : makePhoneNumber Long Distance");
        dialled = dialable->makeLongDistDialableNumber(areaNatPfx, number, countryRule, myKesDialRulesItem);
        route = KesExplanation::Route::LongDistance;
    }
    if (KesExplanation* e = explaining())
        e->route = route;
    recycleString(std::move(strCanPhoneNumber));
    return dialled;
}

bool KesNumberingRules::isPrefixNeeded(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber) {
    return myKesDialRulesItem != nullptr && outsideLinePrefixNeeded(*myKesDialRulesItem, strPhoneNumber);
}

} // namespace numbering
