#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "Explaining.h"
#include "FacadeInternals.h"
#include "common/CanonicalNumber.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <utility>

namespace numbering {

std::string KesNumberingRules::generateDefaultCanonicalNumber(std::string strPhoneNumber,
                                                              std::string strCountryCode,
                                                              std::string strAreaCode) {
    const Conversion conversion;
    return defaultCanonicalNumber(conversion.generation(), std::move(strPhoneNumber), strCountryCode,
                                  strAreaCode);
}

std::string defaultCanonicalNumber(Generation& generation, std::string strPhoneNumber,
                                   std::string_view strCountryCode, std::string_view strAreaCode) {
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug("generateDefaultCanonicalNumber('" + strPhoneNumber + "', '" +
                      std::string(strCountryCode) + "', '" + std::string(strAreaCode) + "')");
    std::string result;
    KesCountryRuleItem* rule = strPhoneNumber.empty() || strCountryCode.empty()
                                   ? nullptr
                                   : storeOf(generation).findCountryRule(strCountryCode);
    if (rule != nullptr) {
        const std::string& ldp = rule->longDistPrefixText();
        std::string& work = strPhoneNumber;
        // Countries whose long-distance rule puts no area code ("F") never show one.
        if (rule->longDistRuleText().find('F') == std::string::npos)
            strAreaCode = std::string_view();
        if (!ldp.empty()) {
            if (startsWith(work, ldp))
                work.erase(0, ldp.size());
            if (startsWith(strAreaCode, ldp))
                strAreaCode.remove_prefix(ldp.size());
        }
        if (!strAreaCode.empty()) {
            if (startsWith(work, strAreaCode))
                work.erase(0, strAreaCode.size());
        } else {
            // Without an area code the national prefix stands in the parentheses: "+33 (0) 612345678".
            strAreaCode = ldp;
        }
        const std::string& countryNumber = rule->countryNumberText();
        // Neither an area code nor a national prefix: "+47 12345678".
        result = strAreaCode.empty() ? CanonicalNumber::writeWithoutArea(countryNumber, work)
                                     : CanonicalNumber::write(countryNumber, strAreaCode, work);
    }
    if (Logger::m_Traces)
        logger->debug("generateDefaultCanonicalNumber result : '" + result + "'");
    return result;
}

namespace {

/// Whether `area` is the national prefix of the country with calling code `countryNumber`, which a
/// mask's "a" leaves out. An unknown country has none.
bool isNationalPrefix(KesNumberingConfig& store, std::string_view area, std::string_view countryNumber) {
    KesCountryRuleItem* rule = store.findCountryRuleOfNumber(countryNumber);
    return rule != nullptr && area == rule->longDistPrefixText();
}

} // namespace

std::string KesNumberingRules::formatCanonicalNumber(std::string strCanPhoneNumber, std::string strPattern) {
    const Conversion conversion;
    return formatCanonical(conversion.generation(), std::move(strCanPhoneNumber), strPattern);
}

namespace {

/// The blanks and separators a mask writes among the places of the subscriber characters behind
/// "+C (A) ", the head of most countries' masks ("+C (A) x xx xx xx xx": 4, "+C (A) xxxxxx": 0);
/// npos for a mask that writes anything else.
std::size_t separatorsOf(std::string_view pattern) {
    constexpr std::string_view head = "+C (A) ";
    if (!startsWith(pattern, head))
        return std::string_view::npos;
    std::size_t separators = 0;
    for (char c : pattern.substr(head.size()))
        if (c == 'x')
            continue;
        else if (isFormatCharacter(c))
            ++separators;
        else
            return std::string_view::npos;
    return separators;
}

/// Whether `text` stands as "+" calling code " (" area ") " subscriber, the form such a mask
/// writes, which it then changes in the subscriber part alone.
bool inMaskForm(std::string_view text, const CanonicalNumber& parts) {
    // The subscriber number where it stands in that form puts the blank and the parentheses in
    // their places, all but the character behind ")", which the reading passes over.
    const std::string_view::size_type subscriber = parts.country.size() + parts.area.size() + 5;
    return parts.subscriber.data() == text.data() + subscriber && text[0] == '+' &&
           text[subscriber - 1] == ' ';
}

/// Whether the readers of a number's digits (the GSM form, the caller identity, the dialling) read
/// the same from `text`, in the form of the mask, as from `text` laid out with that mask of places
/// and `separators` separators: the calling code, the area code and the digits of the subscriber
/// number stand as they did, no "***" keeps a number as it is, and the laid-out number is not too
/// long to be dialled.
bool digitsReadAlike(std::string_view text, const CanonicalNumber& parts, std::size_t separators) {
    return !parts.country.empty() && allDigits(parts.country) &&
           text.size() + separators < static_cast<std::size_t>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH) &&
           !contains(text, "***") && explaining() == nullptr;
}

/// Records which mask lays a canonical number out, and the area part it reads.
void explainLayout(KesExplanation& e, KesExplanation::Mask mask, const std::string& pattern,
                   std::string_view area) {
    e.mask = mask;
    e.maskText = pattern;
    e.areaCode.assign(area);
}

} // namespace

std::string formatCanonical(Generation& generation, std::string strCanPhoneNumber,
                            const std::string& strPattern, Layout layout) {
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug("formatCanonicalNumber('" + strCanPhoneNumber + "', '" + strPattern + "')");
    if (!CanonicalNumber::hasParentheses(strCanPhoneNumber)) {
        if (Logger::m_Traces)
            logger->debug("Can't apply pattern to number : '" + strCanPhoneNumber + "'");
        return strCanPhoneNumber;
    }
    // The pattern in use: the caller's, else the country's mask (none: the empty pattern).
    const std::string* pattern = &strPattern;
    return guardConversion(
        [&]() -> std::string {
            if (strPattern.empty()) {
                // A country without a mask gets the empty one, which keeps only the subscriber
                // number: the shipped configuration has a mask for every calling code.
                static const std::string noMask;
                const std::string* mask =
                    storeOf(generation)
                        .findDefaultPattern(
                            trimmed(between(strCanPhoneNumber, 1, indexOf(strCanPhoneNumber, '('))));
                pattern = mask == nullptr ? &noMask : mask;
            }
            const CanonicalNumber parts = CanonicalNumber::readAtSeparators(strCanPhoneNumber);
            const std::size_t separators = separatorsOf(*pattern);
            const bool inItsForm =
                separators != std::string_view::npos && inMaskForm(strCanPhoneNumber, parts);
            if (layout == Layout::Digits && inItsForm &&
                digitsReadAlike(strCanPhoneNumber, parts, separators))
                return std::move(strCanPhoneNumber);
            if (KesExplanation* e = explaining())
                explainLayout(*e,
                              !strPattern.empty() ? KesExplanation::Mask::Given
                              : pattern->empty()  ? KesExplanation::Mask::Missing
                                                  : KesExplanation::Mask::Country,
                              *pattern, parts.area);
            // Placed character by character, a subscriber number without blanks stays as it is.
            if (separators == 0 && inItsForm && indexOf(parts.subscriber, ' ') == std::string_view::npos)
                return std::move(strCanPhoneNumber);
            std::string_view::size_type placed = 0; // characters of the subscriber part passed
            TextCollector result;
            for (char c : *pattern) {
                switch (c) {
                case 'C':
                    result.append(parts.country);
                    break;
                case 'A':
                    result.append(parts.area);
                    break;
                case 'a':
                    if (!parts.area.empty() &&
                        !isNationalPrefix(storeOf(generation), parts.area, parts.country))
                        result.append(parts.area);
                    break;
                case 'x':
                    // A blank of the number is passed over without placing anything.
                    if (placed < parts.subscriber.size()) {
                        if (parts.subscriber[placed] != ' ')
                            result.push(parts.subscriber[placed]);
                        ++placed;
                    }
                    break;
                default:
                    result.push(c);
                }
            }
            // Digits the mask did not place are never lost.
            result.append(parts.subscriber.substr(placed));
            // The number's own string takes the result when it has room: nothing is left to read
            // from it.
            if (result.view().size() > strCanPhoneNumber.capacity()) {
                std::string laidOut = result.str();
                recycleString(std::move(strCanPhoneNumber));
                return laidOut;
            }
            strCanPhoneNumber.assign(result.view());
            return std::move(strCanPhoneNumber);
        },
        [&](const char* what) {
            logger->error(std::string("KesNumberingRules::formatCanonicalNumber exception: ") + what +
                          " - strCanPhoneNumberFinal: '" + strCanPhoneNumber + "', strPattern: '" + *pattern +
                          "'");
            return strCanPhoneNumber;
        });
}

} // namespace numbering
