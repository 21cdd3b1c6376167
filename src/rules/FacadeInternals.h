#ifndef NUMBERING_SRC_RULES_FACADEINTERNALS_H
#define NUMBERING_SRC_RULES_FACADEINTERNALS_H

// The facade's formatting steps as its conversions call them: on references and views, so that a
// conversion copies no number only to hand it on. The public operations of the same names wrap them.

#include "common/NumberText.h"
#include "lifecycle/Generation.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"

#include <string>
#include <string_view>
#include <typeinfo>

namespace numbering {

/// A presentation character (" ()-."), dropped by every conversion.
inline bool isFormatCharacter(char c) {
    return isOneOf(c, KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER);
}

/// A service character ("*#ABCD"): kept, and the number is a service code.
inline bool isServiceCharacter(char c) {
    return isOneOf(c, KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER);
}

/// The trace line of the extract operation `operation` ("extractCountryNumber"), which the
/// conversions that read a part of a number its way write as well.
void traceExtractLine(const char* operation, std::string_view canonical);
inline void traceExtract(const char* operation, std::string_view canonical) {
    if (Logger::m_Traces)
        traceExtractLine(operation, canonical);
}

/// Whether the installation's tests may be answered from the library's own rules without copies of
/// the number: a host's subclass, or a trace, needs the virtual tests and their lines.
inline bool answeredDirectly(KesDialRulesItem& rules) {
    return !Logger::m_Traces && typeid(rules) == typeid(KesDialRulesItem);
}

/// Whether the outside-line prefix goes in front of `number` under the installation's `rules`:
/// internal extensions (shorter than the local number length) never take it, nor do the
/// installation's exception numbers. A number exactly as long as a local number does.
inline bool outsideLinePrefixNeeded(KesDialRulesItem& rules, const std::string& number) {
    if (answeredDirectly(rules))
        return !rules.isLocalOrExceptionNumber(number);
    if (static_cast<long>(number.size()) < rules.getLocalNbLength())
        return false;
    return !rules.isExceptionNumber(number);
}

/// Whether `number` is a local or exception number of the installation dialled without the
/// outside-line prefix, which the canonical conversion leaves alone.
inline bool dialledInside(KesDialRulesItem& rules, const std::string& number) {
    if (answeredDirectly(rules))
        return rules.isLocalOrExceptionNumber(number) && !startsWith(number, rules.extPrefixText());
    return (rules.isLocalNumber(number) || rules.isExceptionNumber(number)) &&
           !startsWith(number, rules.getExtPrefix());
}

/// generateDefaultCanonicalNumber.
std::string defaultCanonicalNumber(Generation& generation, std::string strPhoneNumber,
                                   std::string_view strCountryCode, std::string_view strAreaCode);

/// What a canonical number is laid out for: display, or only its calling code, area code and
/// subscriber digits (the GSM form, the caller identity, the dialled form), which a country mask
/// of places and separators does not change.
enum class Layout { Display, Digits };

/// formatCanonicalNumber; for the digits, such a country mask is not applied.
std::string formatCanonical(Generation& generation, std::string strCanPhoneNumber,
                            const std::string& strPattern, Layout layout = Layout::Display);

/// Whether `facade` converts as the library does, not as a host's subclass that may override a
/// conversion: then the conversions call each other's code directly.
inline bool ownConversions(KesNumberingRules& facade) {
    return typeid(facade) == typeid(KesNumberingRules);
}

/// makeCanonicalNumber, laid out for `layout`; takes `strPhoneNumber` over.
std::string makeCanonical(KesDialRulesItem* rules, std::string& strPhoneNumber, const std::string& strPattern,
                          bool withExternalPrefix, Layout layout);

/// facade.makeCanonicalNumber(rules, number, "", withExternalPrefix) for a reader of its digits:
/// the library's own conversion leaves out a mask that does not change them; a host's override
/// is called through the virtual table. Takes `number` over.
inline std::string canonicalForDigits(KesNumberingRules& facade, KesDialRulesItem* rules, std::string& number,
                                      bool withExternalPrefix) {
    static const std::string noPattern;
    if (ownConversions(facade))
        return makeCanonical(rules, number, noPattern, withExternalPrefix, Layout::Digits);
    return facade.makeCanonicalNumber(rules, std::move(number), noPattern, withExternalPrefix);
}

/// formatToGSMCanonicalNumber.
std::string formatToGsm(Generation& generation, const std::string& strCanPhoneNumber);

} // namespace numbering

#endif
