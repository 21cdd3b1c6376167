#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "FacadeInternals.h"
#include "NumberText.h"
#include "config/Configuration.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

// Mobile networks take "+" and digits only, and no national prefix written in parentheses.

namespace numbering {

std::string KesNumberingRules::makeGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                      std::string strPhoneNumber, bool withExternalPrefix) {
    PinnedConfiguration pin; // the canonical form and its GSM form from one configuration
    std::string can =
        makeCanonicalNumber(myKesDialRulesItem, std::move(strPhoneNumber), "", withExternalPrefix);
    if (startsWith(can, '+'))
        return formatToGsm(can);
    return can;
}

std::string KesNumberingRules::formatToGSMCanonicalNumber(std::string strCanPhoneNumber) {
    PinnedConfiguration pin;
    return formatToGsm(strCanPhoneNumber);
}

std::string formatToGsm(const std::string& strCanPhoneNumber) {
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug("formatToGSMCanonicalNumber('" + strCanPhoneNumber + "'");
    const std::string::size_type open = indexOf(strCanPhoneNumber, '(');
    if (open == std::string::npos || indexOf(strCanPhoneNumber, ')') == std::string::npos) {
        if (Logger::m_Traces)
            logger->debug("Can't apply pattern to number : '" + strCanPhoneNumber + "'");
        return strCanPhoneNumber;
    }
    if (contains(strCanPhoneNumber, "***"))
        return strCanPhoneNumber;
    return guardConversion(
        [&]() -> std::string {
            const std::string_view countryNumber =
                between(strCanPhoneNumber, 1, indexOf(strCanPhoneNumber, ' '));
            const std::string::size_type close = indexOf(strCanPhoneNumber, ')', open);
            std::string_view area = between(strCanPhoneNumber, open + 1, close);
            KesCountryRuleItem* rule =
                KesNumberingConfig::getInstance()->findCountryRuleOfNumber(countryNumber);
            // A national prefix in the parentheses is dropped, a real area code is kept.
            if (rule != nullptr && rule->longDistPrefixText() == area)
                area = std::string_view();
            TextCollector result;
            result.push('+');
            result.append(countryNumber);
            result.append(area);
            // The blank behind ")" is skipped, and so are the blanks and separators a display mask
            // put into the subscriber part: the GSM form is "+" and digits only.
            if (close != std::string::npos) {
                const CharacterSet format(KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER);
                for (std::string::size_type i = close + 2; i < strCanPhoneNumber.size(); ++i)
                    if (!format.contains(strCanPhoneNumber[i]))
                        result.push(strCanPhoneNumber[i]);
            }
            return result.str();
        },
        [&](const char* what) {
            logger->error(std::string("KesNumberingRules::formatToGSMCanonicalNumber exception: ") + what +
                          " - strCanPhoneNumber: '" + strCanPhoneNumber + "'");
            return strCanPhoneNumber;
        });
}

} // namespace numbering
