#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "FacadeInternals.h"
#include "common/CanonicalNumber.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

// Mobile networks take "+" and digits only, and no national prefix written in parentheses.

namespace numbering {

std::string KesNumberingRules::makeGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                      std::string strPhoneNumber, bool withExternalPrefix) {
    const Conversion conversion; // the canonical form and its GSM form from one configuration
    std::string can = canonicalForDigits(*this, myKesDialRulesItem, strPhoneNumber, withExternalPrefix);
    if (!startsWith(can, '+'))
        return can;
    std::string gsm = formatToGsm(conversion.generation(), can);
    recycleString(std::move(can));
    return gsm;
}

void KesNumberingRules::appendGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                 std::string_view strPhoneNumber, bool withExternalPrefix,
                                                 std::string& out) {
    std::string gsm =
        makeGSMCanonicalNumber(myKesDialRulesItem, spareCopyOf(strPhoneNumber), withExternalPrefix);
    out += gsm;
    recycleString(std::move(gsm));
}

std::string KesNumberingRules::formatToGSMCanonicalNumber(std::string strCanPhoneNumber) {
    const Conversion conversion;
    return formatToGsm(conversion.generation(), strCanPhoneNumber);
}

std::string formatToGsm(Generation& generation, const std::string& strCanPhoneNumber) {
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug("formatToGSMCanonicalNumber('" + strCanPhoneNumber + "'");
    if (!CanonicalNumber::hasParentheses(strCanPhoneNumber)) {
        if (Logger::m_Traces)
            logger->debug("Can't apply pattern to number : '" + strCanPhoneNumber + "'");
        return strCanPhoneNumber;
    }
    if (contains(strCanPhoneNumber, "***"))
        return strCanPhoneNumber;
    return guardConversion(
        [&]() -> std::string {
            const CanonicalNumber parts = CanonicalNumber::readAtSeparators(strCanPhoneNumber);
            std::string_view area = parts.area;
            KesCountryRuleItem* rule = storeOf(generation).findCountryRuleOfNumber(parts.country);
            // A national prefix in the parentheses is dropped, a real area code is kept.
            if (rule != nullptr && rule->longDistPrefixText() == area)
                area = std::string_view();
            TextCollector result;
            result.push('+');
            result.append(parts.country);
            result.append(area);
            // The blanks and separators a display mask put into the subscriber part are skipped:
            // the GSM form is "+" and digits only.
            for (char c : parts.subscriber)
                if (!isFormatCharacter(c))
                    result.push(c);
            return result.str();
        },
        [&](const char* what) {
            logger->error(std::string("KesNumberingRules::formatToGSMCanonicalNumber exception: ") + what +
                          " - strCanPhoneNumber: '" + strCanPhoneNumber + "'");
            return strCanPhoneNumber;
        });
}

} // namespace numbering
