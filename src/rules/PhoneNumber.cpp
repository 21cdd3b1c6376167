#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "Explaining.h"
#include "FacadeInternals.h"
#include "common/NumberText.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <typeinfo>

namespace numbering {

namespace {

/// Whether the number as the user gave it already seized an outside line: it begins with the
/// outside-line prefix, or it is canonical. Without an outside-line prefix nothing did.
bool hadExternalPrefix(const std::string& number, const std::string& ext) {
    return !ext.empty() && (startsWith(number, ext) || startsWith(number, '+'));
}

/// Records the outside-line prefix decision below, for `dial` typed as `hadPrefix` says.
void explainExternalPrefix(KesExplanation& e, KesDialRulesItem& rules, const std::string& ext, bool hadPrefix,
                           const std::string& dial) {
    using OutsideLine = KesExplanation::OutsideLine;
    if (ext.empty()) {
        e.outsideLine = OutsideLine::NoPrefix;
        return;
    }
    if (outsideLinePrefixNeeded(rules, dial))
        e.outsideLine = OutsideLine::Needed;
    else if (hadPrefix)
        e.outsideLine =
            startsWith(Poco::trim(e.number), '+') ? OutsideLine::Canonical : OutsideLine::DialledWithPrefix;
    else if (static_cast<long>(dial.size()) < rules.getLocalNbLength())
        e.outsideLine = OutsideLine::InternalExtension;
    else
        e.outsideLine = OutsideLine::ExceptionNumber;
    e.outsideLinePrefixAdded = e.outsideLine == OutsideLine::Needed || (hadPrefix && !startsWith(dial, ext));
}

/// facade.isPrefixNeeded(rules, dial), without a copy of the number when the facade is the
/// library's own.
bool prefixNeeded(KesNumberingRules& facade, KesDialRulesItem* rules, const std::string& dial) {
    if (ownConversions(facade))
        return outsideLinePrefixNeeded(*rules, dial);
    return facade.isPrefixNeeded(rules, dial);
}

/// The outside-line prefix decision shared by makePhoneNumber and addExternalPrefix: the prefix
/// goes in front when the installation's rules want it. A number the user explicitly dialled with
/// the prefix keeps it even where the rules would not add it (a short number, an exception).
std::string withExternalPrefix(KesNumberingRules& facade, KesDialRulesItem* rules, const std::string& ext,
                               bool hadPrefix, std::string dial) {
    if (dial.empty())
        return dial;
    if (KesExplanation* e = explaining())
        explainExternalPrefix(*e, *rules, ext, hadPrefix, dial);
    if (prefixNeeded(facade, rules, dial) || (hadPrefix && !startsWith(dial, ext)))
        dial.insert(0, ext);
    return dial;
}

/// The digits that dial `number` from the installation: its canonical form, dialled; "" when it has
/// no canonical form.
std::string dialledForm(KesNumberingRules& facade, KesDialRulesItem* rules, const std::string& number) {
    std::string copy = spareCopyOf(number); // the number stays for the error line of a failure
    std::string canonical = canonicalForDigits(facade, rules, copy, false);
    return canonical.empty() ? canonical : facade.makeDialableNumber(rules, std::move(canonical));
}

/// Digits first, as the conversions read a number: most of its characters are digits.
bool containsServiceCharacter(const std::string& number) {
    return std::any_of(number.begin(), number.end(),
                       [](char c) { return !isDigit(c) && isServiceCharacter(c); });
}

/// What makePhoneNumber and addExternalPrefix do around their conversion: the argument checks, a
/// number holding "***" passed through, one configuration for the canonical and the dialled forms,
/// the trace on entry, and any failure logged and answered with "".
template <class Convert>
std::string dialledConversion(const char* operation, KesDialRulesItem* rules, std::string& number,
                              Convert convert) {
    requireArguments(rules, number);
    if (contains(number, "***"))
        return std::move(number);
    const Conversion conversion; // the canonical and the dialled forms from one configuration
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug(std::string(operation) + " with : " + number);
    return guardConversion(convert, [&](const char* what) {
        logConversionFailure(logger, operation, what, number, "", rules);
        return std::string();
    });
}

} // namespace

std::string KesNumberingRules::makePhoneNumber(KesDialRulesItem* myKesDialRulesItem,
                                               std::string strPhoneNumber) {
    return dialledConversion("makePhoneNumber", myKesDialRulesItem, strPhoneNumber, [&]() -> std::string {
        trimTypedNumber(strPhoneNumber);
        const bool canonical = strPhoneNumber.at(0) == '+'; // only white space: std::out_of_range
        const std::string ext = myKesDialRulesItem->getExtPrefix();
        const bool hadPrefix = hadExternalPrefix(strPhoneNumber, ext);
        // Without an outside-line prefix only canonical input is converted.
        if (ext.empty() && !canonical)
            return checkPhoneNumber(strPhoneNumber);
        const bool special = !canonical && containsServiceCharacter(strPhoneNumber);
        if (Logger::m_Traces)
            logger->debug(std::string("containsSpecialCharacter : ") + (special ? "true" : "false"));
        // Service codes such as "*12#" are never converted nor prefixed.
        if (special)
            return checkPhoneNumber(strPhoneNumber);
        return withExternalPrefix(*this, myKesDialRulesItem, ext, hadPrefix,
                                  dialledForm(*this, myKesDialRulesItem, strPhoneNumber));
    });
}

std::string KesNumberingRules::addExternalPrefix(KesDialRulesItem* myKesDialRulesItem,
                                                 std::string strPhoneNumber) {
    return dialledConversion("addExternalPrefix", myKesDialRulesItem, strPhoneNumber, [&]() -> std::string {
        const std::string ext = myKesDialRulesItem->getExtPrefix();
        // Read on the number as given: this operation trims only without an outside-line prefix.
        const bool hadPrefix = hadExternalPrefix(strPhoneNumber, ext);
        if (ext.empty()) {
            Poco::trimInPlace(strPhoneNumber);
            if (strPhoneNumber.at(0) != '+') // only white space: std::out_of_range
                return checkPhoneNumber(strPhoneNumber);
        }
        // What is not canonical is only checked, never converted.
        std::string dial = startsWith(strPhoneNumber, '+')
                               ? dialledForm(*this, myKesDialRulesItem, strPhoneNumber)
                               : checkPhoneNumber(strPhoneNumber);
        return withExternalPrefix(*this, myKesDialRulesItem, ext, hadPrefix, std::move(dial));
    });
}

} // namespace numbering
