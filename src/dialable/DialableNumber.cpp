#include "numbering/KesNumberingRules.h"

#include "config/Configuration.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"
#include "rules/ConversionGuard.h"
#include "rules/NumberText.h"

#include <algorithm>

namespace numbering {

namespace {

/// The three fields of a canonical number: "+49 (89) 123456" is country "49", area or national
/// prefix "89" and subscriber "123456". `end` is where the parse stopped.
struct DialableFields {
    std::string country;
    std::string areaNatPfx;
    std::string number;
    std::string::size_type end;
};

/// Reads the fields from the second character on, never past the longest dialable number: the
/// country's digits and the character behind them, up to the area code (a "(" is passed), the area
/// code's digits only when the number has both parentheses, then every remaining digit.
DialableFields parseCanonical(const std::string& canonical) {
    DialableFields fields;
    const std::string::size_type bound =
        std::min<std::string::size_type>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH, canonical.size());
    std::string::size_type i = 1;
    while (i < bound && !isDigit(canonical[i]))
        ++i;
    while (i < bound && isDigit(canonical[i]))
        fields.country += canonical[i++];
    if (i < bound)
        ++i;
    while (i < bound && !isDigit(canonical[i]) && canonical[i] != '(')
        ++i;
    if (i < bound && canonical[i] == '(')
        ++i;
    if (indexOf(canonical, '(') != std::string::npos && indexOf(canonical, ')') != std::string::npos) {
        while (i < bound && isDigit(canonical[i]))
            fields.areaNatPfx += canonical[i++];
        while (i < bound && !isDigit(canonical[i]))
            ++i;
    }
    for (; i < bound; ++i)
        if (isDigit(canonical[i]))
            fields.number += canonical[i];
    fields.end = i;
    return fields;
}

} // namespace

std::string KesNumberingRules::makeDialableNumber(KesDialRulesItem* myKesDialRulesItem,
                                                  std::string strCanPhoneNumber) {
    PinnedConfiguration pin;
    const std::string countryId = myKesDialRulesItem->getCountryId();
    const std::vector<std::string>& areaCodes = myKesDialRulesItem->getAreaCodesList();
    if (Logger::m_Traces)
        logger->debug("makeDialableNumber('" + countryId + "', '" +
                      (areaCodes.empty() ? "" : areaCodes.front()) + "', '" + strCanPhoneNumber + "')");
    KesCountryRuleItem* countryRule = pin.store()->findCountryRule(countryId);
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

    DialableFields fields = parseCanonical(strCanPhoneNumber);
    if (Logger::m_Traces)
        logger->debug("Country : '" + fields.country + "', Area/Nat Pfx : '" + fields.areaNatPfx +
                      "', Number : '" + fields.number + "'");
    // The installation's country chooses the strategy, never the destination's.
    const std::string& countryNumber = countryRule->countryNumberText();
    KesDialable* dialable = requireDialable(countryNumber);
    if (fields.end >= static_cast<std::string::size_type>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH) ||
        fields.number.empty())
        return std::string();

    if (countryNumber != fields.country) {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules : makePhoneNumber International");
        return dialable->makeInternationalDialableNumber(fields.country, fields.areaNatPfx, fields.number,
                                                         countryRule);
    }
    if (std::find(areaCodes.begin(), areaCodes.end(), fields.areaNatPfx) != areaCodes.end()) {
        if (Logger::m_Traces)
            logger->debug("KesNumberingRules : makePhoneNumber local with area code");
        return dialable->makeLocalDialableNumber(fields.areaNatPfx, fields.number, countryRule);
    }
    if (Logger::m_Traces)
        logger->debug("KesNumberingRules : makePhoneNumber Long Distance");
    return dialable->makeLongDistDialableNumber(fields.areaNatPfx, fields.number, countryRule,
                                                myKesDialRulesItem);
}

bool KesNumberingRules::isPrefixNeeded(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber) {
    if (myKesDialRulesItem == nullptr)
        return false;
    // Internal extensions never take the outside-line prefix, nor do the installation's exceptions.
    if (static_cast<long>(strPhoneNumber.size()) < myKesDialRulesItem->getLocalNbLength())
        return false;
    return !myKesDialRulesItem->isExceptionNumber(std::move(strPhoneNumber));
}

} // namespace numbering
