#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "NumberText.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

// Mobile networks take "+" and digits only, and no national prefix written in parentheses.

namespace numbering {

std::string KesNumberingRules::makeGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                      std::string strPhoneNumber, bool withExternalPrefix) {
    std::string can =
        makeCanonicalNumber(myKesDialRulesItem, std::move(strPhoneNumber), "", withExternalPrefix);
    if (startsWith(can, '+'))
        return formatToGSMCanonicalNumber(std::move(can));
    return can;
}

std::string KesNumberingRules::formatToGSMCanonicalNumber(std::string strCanPhoneNumber) {
    if (Logger::m_Traces)
        logger->debug("formatToGSMCanonicalNumber('" + strCanPhoneNumber + "'");
    const std::string::size_type open = strCanPhoneNumber.find('(');
    if (open == std::string::npos || strCanPhoneNumber.find(')') == std::string::npos) {
        if (Logger::m_Traces)
            logger->debug("Can't apply pattern to number : '" + strCanPhoneNumber + "'");
        return strCanPhoneNumber;
    }
    if (contains(strCanPhoneNumber, "***"))
        return strCanPhoneNumber;
    return guardConversion(
        [&]() -> std::string {
            const std::string countryNumber = between(strCanPhoneNumber, 1, strCanPhoneNumber.find(' '));
            const std::string::size_type close = strCanPhoneNumber.find(')', open);
            std::string area = between(strCanPhoneNumber, open + 1, close);
            KesNumberingConfig* store = KesNumberingConfig::getInstance();
            KesCountryRuleItem* rule = store->getCountryRule(store->getCountryCodeFromNumber(countryNumber));
            // A national prefix in the parentheses is dropped, a real area code is kept.
            if (rule != nullptr && rule->getLongDistPrefix() == area)
                area.clear();
            std::string result;
            result.reserve(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
            result += '+';
            result += countryNumber;
            result += area;
            // The blank behind ")" is skipped, and so are the blanks and separators a display mask
            // put into the subscriber part: the GSM form is "+" and digits only.
            if (close != std::string::npos)
                for (std::string::size_type i = close + 2; i < strCanPhoneNumber.size(); ++i)
                    if (!isFormatCharacter(strCanPhoneNumber[i]))
                        result += strCanPhoneNumber[i];
            return result;
        },
        [&](const char* what) {
            logger->error(std::string("KesNumberingRules::formatToGSMCanonicalNumber exception: ") + what +
                          " - strCanPhoneNumber: '" + strCanPhoneNumber + "'");
            return strCanPhoneNumber;
        });
}

} // namespace numbering
