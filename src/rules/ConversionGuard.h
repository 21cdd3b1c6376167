#ifndef NUMBERING_SRC_RULES_CONVERSIONGUARD_H
#define NUMBERING_SRC_RULES_CONVERSIONGUARD_H

// What keeps the facade's conversions from failing the caller: the argument checks, whose
// std::invalid_argument is the only error that reaches the host; the look-ups a conversion cannot
// do without; and the handlers that turn any other error into one logged line and a fallback result.

#include "dialable/StrategyCache.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

namespace numbering {

/// The checks every public conversion makes first, dialing rules before number.
inline void requireArguments(KesDialRulesItem* myKesDialRulesItem, const std::string& strPhoneNumber) {
    if (myKesDialRulesItem == nullptr)
        throw std::invalid_argument("'myKesDialRulesItem' parameter can not be null");
    if (strPhoneNumber.empty())
        throw std::invalid_argument("'strPhoneNumber' parameter can not be null");
}

/// The rules of `countryCode`. A country missing from the dialing rules file (an installation built
/// without validation, a key that is not two characters long) fails the conversion, not the process.
inline KesCountryRuleItem* requireCountryRule(KesNumberingConfig* config, std::string_view countryCode) {
    KesCountryRuleItem* rule = config->findCountryRule(countryCode);
    if (rule == nullptr)
        throw std::invalid_argument("no dialing rules for country '" + std::string(countryCode) + "'");
    return rule;
}

/// The dialing strategy of `countryNumber` in `generation`; a row without a calling code has none.
inline KesDialable* requireDialable(Generation& generation, std::string_view countryNumber) {
    KesDialable* dialable = dialableOf(generation, countryNumber);
    if (dialable == nullptr)
        throw std::invalid_argument("no dialing strategy for country number '" + std::string(countryNumber) +
                                    "'");
    return dialable;
}

/// Returns body(), or onFailure(text of the error) when body throws anything. An error outside the
/// standard hierarchy (KesUnsupportedCountryException among them) has no text: it reads "...".
template <class Body, class OnFailure> std::string guardConversion(Body body, OnFailure onFailure) {
    try {
        return body();
    } catch (const std::exception& e) {
        return onFailure(e.what());
    } catch (...) {
        return onFailure("...");
    }
}

/// The error line of a number conversion that failed:
/// "KesNumberingRules::<operation> exception: <what> - PhoneNumber: '<number>'<detail>" followed by
/// the installation's dialing rules on a line of their own (the logger escapes any other line break).
inline void logConversionFailure(Logger* logger, const char* operation, const char* what,
                                 const std::string& number, const std::string& detail,
                                 KesDialRulesItem* rules) {
    logger->error(std::string("KesNumberingRules::") + operation + " exception: " + what +
                      " - PhoneNumber: '" + number + "'" + detail,
                  "  DialRules: " + rules->ToString());
}

} // namespace numbering

#endif
