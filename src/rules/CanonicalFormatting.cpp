#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "NumberText.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

namespace numbering {

std::string KesNumberingRules::generateDefaultCanonicalNumber(std::string strPhoneNumber,
                                                              std::string strCountryCode,
                                                              std::string strAreaCode) {
    if (Logger::m_Traces)
        logger->debug("generateDefaultCanonicalNumber('" + strPhoneNumber + "', '" + strCountryCode + "', '" +
                      strAreaCode + "')");
    std::string result;
    if (!strPhoneNumber.empty() && !strCountryCode.empty() && config->validCountryCode(strCountryCode)) {
        KesCountryRuleItem* rule = config->getCountryRule(strCountryCode);
        const std::string ldp = rule->getLongDistPrefix();
        std::string& work = strPhoneNumber;
        // Countries whose long-distance rule puts no area code ("F") never show one.
        if (rule->getLongDistRule().find('F') == std::string::npos)
            strAreaCode.clear();
        if (!ldp.empty()) {
            if (startsWith(work, ldp))
                work.erase(0, ldp.size());
            if (startsWith(strAreaCode, ldp))
                strAreaCode.erase(0, ldp.size());
        }
        if (!strAreaCode.empty()) {
            if (startsWith(work, strAreaCode))
                work.erase(0, strAreaCode.size());
        } else {
            // Without an area code the national prefix stands in the parentheses: "+33 (0) 612345678".
            strAreaCode = ldp;
        }
        result.reserve(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH);
        result += '+';
        result += rule->getCountryNumber();
        if (!strAreaCode.empty()) {
            result += " (";
            result += strAreaCode;
            result += ") ";
        } else {
            result += ' ';
        }
        result += work;
    }
    if (Logger::m_Traces)
        logger->debug("generateDefaultCanonicalNumber result : '" + result + "'");
    return result;
}

namespace {

/// The three parts of a canonical number that a mask places.
struct CanonicalParts {
    std::string countryNumber;         // from the second character up to the first blank
    std::string area;                  // between the first "(" and the next ")"
    std::string::size_type subscriber; // just past the blank behind that ")"
};

CanonicalParts splitCanonical(const std::string& number, std::string::size_type open) {
    CanonicalParts parts;
    parts.countryNumber = between(number, 1, number.find(' '));
    const std::string::size_type close = number.find(')', open);
    parts.area = between(number, open + 1, close);
    parts.subscriber = close == std::string::npos ? number.size() : close + 2;
    return parts;
}

/// Whether `area` is the national prefix of the country with calling code `countryNumber`, which a
/// mask's "a" leaves out. An unknown country has none.
bool isNationalPrefix(const std::string& area, const std::string& countryNumber, KesNumberingConfig* config) {
    KesCountryRuleItem* rule = config->getCountryRule(config->getCountryCodeFromNumber(countryNumber));
    return rule != nullptr && area == rule->getLongDistPrefix();
}

} // namespace

std::string KesNumberingRules::formatCanonicalNumber(std::string strCanPhoneNumber, std::string strPattern) {
    if (Logger::m_Traces)
        logger->debug("formatCanonicalNumber('" + strCanPhoneNumber + "', '" + strPattern + "')");
    const std::string::size_type open = strCanPhoneNumber.find('(');
    if (open == std::string::npos || strCanPhoneNumber.find(')') == std::string::npos) {
        if (Logger::m_Traces)
            logger->debug("Can't apply pattern to number : '" + strCanPhoneNumber + "'");
        return strCanPhoneNumber;
    }
    return guardConversion(
        [&]() -> std::string {
            if (strPattern.empty()) {
                std::string countryNumber = between(strCanPhoneNumber, 1, open);
                Poco::trimInPlace(countryNumber);
                // A country without a mask gets the empty one, which keeps only the subscriber
                // number: the shipped configuration has a mask for every calling code.
                strPattern = config->getDefaultPattern(countryNumber);
            }
            const CanonicalParts parts = splitCanonical(strCanPhoneNumber, open);
            std::string::size_type pos = parts.subscriber;
            std::string result;
            result.reserve(300);
            for (char c : strPattern) {
                switch (c) {
                case 'C':
                    result += parts.countryNumber;
                    break;
                case 'A':
                    result += parts.area;
                    break;
                case 'a':
                    if (!parts.area.empty() && !isNationalPrefix(parts.area, parts.countryNumber, config))
                        result += parts.area;
                    break;
                case 'x':
                    // A blank of the number is passed over without placing anything.
                    if (pos < strCanPhoneNumber.size()) {
                        if (strCanPhoneNumber[pos] != ' ')
                            result += strCanPhoneNumber[pos];
                        ++pos;
                    }
                    break;
                default:
                    result += c;
                }
            }
            // Digits the mask did not place are never lost.
            if (pos < strCanPhoneNumber.size())
                result.append(strCanPhoneNumber, pos, std::string::npos);
            return result;
        },
        [&](const char* what) {
            logger->error(std::string("KesNumberingRules::formatCanonicalNumber exception: ") + what +
                          " - strCanPhoneNumberFinal: '" + strCanPhoneNumber + "', strPattern: '" +
                          strPattern + "'");
            return strCanPhoneNumber;
        });
}

} // namespace numbering
