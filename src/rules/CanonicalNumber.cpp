#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "Explaining.h"
#include "FacadeInternals.h"
#include "cnp/PlanCache.h"
#include "common/CanonicalNumber.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNP.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <stdexcept>

// makeCanonicalNumber in three steps: tell what kind of number was typed (international, national
// or possibly local, or a service code), write it in canonical form by the country's plan or by the
// generic rules, and lay it out with the mask.

namespace numbering {

namespace {

/// What the user typed, read: the number to put in canonical form, the country it belongs to and
/// the rules that read it. Filled by one of the two readers below.
struct TypedNumber {
    std::string number;           // the number to put in canonical form
    std::string_view countryCode; // the country it belongs to, "" when unknown
    bool known = false;           // recognised as international or national
    KesDialRulesItem* rules;      // the installation's, or the destination country's
    std::string ownCountry;       // the installation's country, when countryCode is that

    explicit TypedNumber(KesDialRulesItem* installation) : rules(installation) {}
    TypedNumber(const TypedNumber&) = delete;
    TypedNumber& operator=(const TypedNumber&) = delete;

    /// From here on the number is `national`, a national number of `country` read with that
    /// country's rules.
    void takeDestination(const KesNumberingConfig::Country& country, std::string national) {
        // The store made the rules once for every country but one whose code they refuse.
        if (country.nationalRules == nullptr)
            KesDialRulesItem(country.code, "", 0, "", 0, ""); // throws, as the rules always did
        number = std::move(national);
        countryCode = country.code;
        known = true;
        rules = country.nationalRules.get();
    }
};

/// Collects the digits and service characters of `number` into `out`, dropping presentation
/// characters, and sets `serviceCode` at a service character. False at any other character.
bool collectPhoneCharacters(std::string_view number, TextCollector& out, bool& serviceCode) {
    for (char c : number) {
        if (isDigit(c)) {
            out.push(c);
        } else if (isServiceCharacter(c)) {
            out.push(c);
            serviceCode = true;
        } else if (!isFormatCharacter(c)) {
            return false;
        }
    }
    return true;
}

/// The digits and service characters of a number not in international form; the scan ends at a
/// "|". Sets `serviceCode` when a service character is met; any character that is neither a digit
/// nor a presentation character rejects the number.
std::string cleanNationalNumber(std::string_view strValid, bool& serviceCode) {
    TextCollector digits;
    if (!collectPhoneCharacters(strValid.substr(0, indexOf(strValid, '|')), digits, serviceCode)) {
        if (KesExplanation* e = explaining())
            e->kind = KesExplanation::Kind::NotAPhoneNumber;
        if (Logger::m_Traces)
            KesNumberingRules::logger->debug("MakeCanonical : wrong character in number : " +
                                             std::string(strValid));
        throw std::invalid_argument("'strPhoneNumber' parameter is not a phone number");
    }
    return digits.str();
}

/// A number dialled with the international prefix: finds the destination country behind it and any
/// operator prefix. Calling back into the own country keeps the operator prefix, since it is dialled
/// nationally as well; calling another country drops it.
bool readInternationalPrefix(Generation& generation, TypedNumber& kind, const std::string& strPhoneNumber,
                             const std::string& digits, const std::string& internatPfx,
                             KesCountryRuleItem* countryRule) {
    KesNumberingConfig& config = storeOf(generation);
    Logger* logger = KesNumberingRules::logger;
    KesDialable* dialable = requireDialable(generation, countryRule->countryNumberText());
    const std::string opPrefix = dialable->extractOperatorPrefix(digits.substr(internatPfx.size()));
    const std::string_view afterPrefixes =
        std::string_view(digits).substr(internatPfx.size() + opPrefix.size());
    const std::string_view countryNumber = afterPrefixes.substr(0, config.countryNumberLength(afterPrefixes));
    const KesNumberingConfig::Country* destination = config.findCountry(countryNumber);
    KesExplanation* e = explaining();
    if (destination == nullptr) {
        if (Logger::m_Traces)
            logger->debug("International number detected but no country code was found '" + strPhoneNumber +
                          "'");
        if (e != nullptr) {
            e->kind = KesExplanation::Kind::UnknownCountry;
            e->destinationCountry.clear();
        }
        return false;
    }
    if (e != nullptr) {
        e->kind = KesExplanation::Kind::International;
        e->operatorPrefix = opPrefix;
        e->destinationCountry = destination->code;
    }
    if (Logger::m_Traces)
        logger->debug("International number detected : '" + digits + "' with CountryCode '" +
                      destination->code + "'");
    std::string national = requireCountryRule(&config, destination->code)->longDistPrefixText();
    if (destination->code == kind.countryCode)
        national += opPrefix;
    national.append(afterPrefixes.substr(countryNumber.size()));
    kind.takeDestination(*destination, std::move(national));
    return true;
}

/// A number dialled with the national prefix, or in a country that writes local and national
/// numbers alike, is national; anything else may be local.
bool isNationalByPrefix(const std::string& strPhoneNumber, KesCountryRuleItem* countryRule) {
    Logger* logger = KesNumberingRules::logger;
    const std::string& ldp = countryRule->longDistPrefixText();
    if (ldp.empty()) {
        const std::string& localRule = countryRule->localRuleText();
        const std::string& longDistRule = countryRule->longDistRuleText();
        if ((longDistRule.empty() && localRule == "G") || longDistRule == localRule) {
            if (Logger::m_Traces)
                logger->debug("There is no difference between local and national phone number format'" +
                              strPhoneNumber + "'");
            if (KesExplanation* e = explaining())
                e->kind = KesExplanation::Kind::NationalAsLocal;
            return true;
        }
        return false;
    }
    if (startsWith(strPhoneNumber, ldp)) {
        if (Logger::m_Traces)
            logger->debug("National number detected '" + strPhoneNumber + "'");
        if (KesExplanation* e = explaining())
            e->kind = KesExplanation::Kind::National;
        return true;
    }
    return false;
}

/// A number in international form: its calling code names the country, and the rest is written as
/// that country dials it nationally, so that the country's plan can take it from there.
void readInternationalForm(Generation& generation, TypedNumber& kind, const CanonicalNumber& typed,
                           std::string_view strValid) {
    KesNumberingConfig& config = storeOf(generation);
    traceExtract("extractCountryNumber", strValid);
    std::string_view countryNumber = typed.country;
    const KesNumberingConfig::Country* country;
    if (countryNumber.empty()) {
        countryNumber = strValid.substr(1, config.countryNumberLength(strValid.substr(1)));
        country = config.findCountry(countryNumber);
    } else {
        country = config.findCountry(countryNumber);
        // "+33123456789": the run of digits is more than the calling code.
        if (country == nullptr) {
            countryNumber = countryNumber.substr(0, config.countryNumberLength(countryNumber));
            country = config.findCountry(countryNumber);
        }
    }
    if (country == nullptr) {
        if (Logger::m_Traces)
            KesNumberingRules::logger->debug("No country code found for country number '" +
                                             std::string(countryNumber) + "'");
        if (KesExplanation* e = explaining())
            e->kind = KesExplanation::Kind::UnknownCountry;
        return;
    }
    if (KesExplanation* e = explaining()) {
        e->kind = KesExplanation::Kind::InternationalForm;
        e->destinationCountry = country->code;
    }
    std::string national;
    appendDigits(strValid.substr(countryNumber.size() + 1), national);
    kind.takeDestination(*country, std::string());
    KesCountryRuleItem* countryRule = requireCountryRule(&config, country->code);
    std::string noArea;
    kind.number = requireDialable(generation, countryNumber)
                      ->makeLongDistDialableNumber(noArea, national, countryRule, kind.rules);
}

/// The line checkPhoneNumber traces; call only when tracing.
void traceChecked(std::string_view strPhoneNumber, const std::string& result) {
    KesNumberingRules::logger->debug("checkPhoneNumber('" + std::string(strPhoneNumber) + "') returns '" +
                                     result + "'");
}

/// checkPhoneNumber: the digits and service characters of the number, or "" when it holds another
/// character.
std::string phoneCharactersOf(std::string_view strPhoneNumber) {
    std::string result;
    TextCollector kept;
    bool serviceCode = false;
    // The usual case, digits only, is the number itself.
    if (allDigits(strPhoneNumber))
        result.assign(strPhoneNumber);
    else if (collectPhoneCharacters(strPhoneNumber, kept, serviceCode))
        result = kept.str();
    if (Logger::m_Traces)
        traceChecked(strPhoneNumber, result);
    return result;
}

/// A number not in international form (`typed` as the user typed it, trimmed, with `strValid` its
/// validated form): the installation's own, or one dialled with the international prefix. False
/// for a service code, which is never made canonical: `kind.number` holds it.
bool readNationalForm(Generation& generation, TypedNumber& kind, const std::string& typed,
                      std::string_view strValid) {
    bool serviceCode = false;
    std::string digits = cleanNationalNumber(strValid, serviceCode);
    if (serviceCode) {
        if (KesExplanation* e = explaining())
            e->kind = KesExplanation::Kind::ServiceCode;
        kind.number = std::move(digits);
        return false;
    }
    KesDialRulesItem* installation = kind.rules;
    kind.ownCountry = installation->getCountryId();
    kind.countryCode = kind.ownCountry;
    KesCountryRuleItem* countryRule = requireCountryRule(&storeOf(generation), kind.countryCode);
    const std::string& internatPfx = countryRule->internatPfxText();
    bool abroad = false; // the international prefix led to another country's national number
    // The prefix tests look at the number as typed, not at its digits.
    const bool prefixNeeded = outsideLinePrefixNeeded(*installation, typed);
    if (KesExplanation* e = explaining()) { // the tests below say more where they can
        e->kind = prefixNeeded ? KesExplanation::Kind::Local : KesExplanation::Kind::Extension;
        e->destinationCountry = kind.ownCountry;
    }
    if (prefixNeeded) {
        if (startsWith(typed, internatPfx))
            abroad = readInternationalPrefix(generation, kind, typed, digits, internatPfx, countryRule);
        else
            kind.known = isNationalByPrefix(typed, countryRule);
    }
    if (!abroad)
        kind.number = std::move(digits);
    else
        recycleString(std::move(digits));
    return true;
}

/// The country's plan writes the number in canonical form; a number with a character that is not
/// part of a phone number, or one holding "***", stays as it is.
std::string canonicalByPlan(KesCNP* plan, std::string number, KesDialRulesItem* rules) {
    Logger* logger = KesNumberingRules::logger;
    if (!number.empty() && allDigits(number)) {
        if (Logger::m_Traces) // the usual case: the number is its own phone characters
            traceChecked(number, number);
    } else {
        std::string cleaned = phoneCharactersOf(number);
        if (cleaned.empty()) {
            if (Logger::m_Traces)
                logger->debug("Altered Source Number : '" + number + "'");
            return number;
        }
        if (contains(cleaned, "***"))
            return cleaned;
        number = std::move(cleaned);
    }
    if (Logger::m_Traces)
        logger->debug("Source number to be altered : '" + number + "'");
    std::string canonical = plan->dlr_Country_MakeCanonicalNumber(std::move(number), rules);
    // A plan that places area codes without a list (France, North America, ...) says nothing itself.
    if (KesExplanation* e = explaining())
        if (e->areaCodeFound == KesExplanation::AreaCode::NotSought && startsWith(canonical, '+'))
            e->areaCodeFound = KesExplanation::AreaCode::PlanRule;
    return canonical;
}

/// The generic rules write an international or national number in canonical form; a number that
/// may be local stays as it is.
std::string canonicalByGenericRules(Generation& generation, TypedNumber& kind, std::string_view strAreaCode,
                                    bool internationalForm) {
    Logger* logger = KesNumberingRules::logger;
    if (Logger::m_Traces)
        logger->debug("No special format defined for country " + std::string(kind.countryCode));
    if (internationalForm)
        return defaultCanonicalNumber(generation, std::move(kind.number), kind.countryCode, strAreaCode);
    if (kind.known)
        return defaultCanonicalNumber(generation, std::move(kind.number), kind.countryCode, "");
    if (Logger::m_Traces)
        logger->debug("Can't translate to a canonical phone number : we don't known if '" + kind.number +
                      "' is a local or national phone number");
    return std::move(kind.number);
}

/// The canonical form of the number `kind` holds. A number of no known country stays as validated;
/// a local or exception number of the installation is left alone unless it carries the outside-line
/// prefix or was written in international form.
std::string canonicalForm(Generation& generation, TypedNumber& kind, std::string_view strValid,
                          std::string_view strAreaCode, bool internationalForm) {
    if (kind.countryCode.empty())
        return std::string(strValid);
    KesCNP* plan = planOf(generation, kind.countryCode);
    KesDialRulesItem* rules = kind.rules;
    // A number in international form is never left alone: the rules' tests are then asked only for
    // the lines they trace.
    if ((!internationalForm || Logger::m_Traces) && dialledInside(*rules, kind.number) &&
        !internationalForm) {
        if (Logger::m_Traces)
            KesNumberingRules::logger->debug("Nothing to do for" + kind.number);
        if (KesExplanation* e = explaining())
            e->plan = KesExplanation::Plan::LeftAlone;
        return std::move(kind.number);
    }
    if (KesExplanation* e = explaining()) {
        e->plan =
            plan != nullptr ? KesExplanation::Plan::CountryPlan : KesExplanation::Plan::NoPlanForCountry;
        if (plan == nullptr && internationalForm && !strAreaCode.empty())
            e->areaCodeFound = KesExplanation::AreaCode::AsWritten;
    }
    if (plan != nullptr)
        return canonicalByPlan(plan, std::move(kind.number), rules);
    return canonicalByGenericRules(generation, kind, strAreaCode, internationalForm);
}

/// The trimmed number; a number in international form is rewritten into `result` as
/// "+<country> (<area>) <rest>" and the view shows `result`.
std::string_view validNumber(const std::string& strPhoneNumber, TextCollector& result) {
    Logger* logger = KesNumberingRules::logger;
    const std::string_view number = trimmed(strPhoneNumber);
    if (number.size() < 2 || number[0] != '+')
        return number;
    const std::string_view::size_type length = number.size();
    result.push('+');
    std::string_view::size_type i = 1;
    while (i < length && !isDigit(number[i]))
        ++i;
    while (i < length && isDigit(number[i]))
        result.push(number[i++]);
    while (i < length && !isDigit(number[i]))
        ++i;
    // The next run of digits is the area code, unless the number was written without separators
    // ("+33123456789") or nothing follows the calling code: then the calling code stands alone.
    if (i < length) {
        result.append(" (");
        while (i < length && isDigit(number[i]))
            result.push(number[i++]);
        result.append(") ");
        if (Logger::m_Traces)
            logger->debug("ValidNumber CountryCode + AreaCode : " + result.str());
        // The parenthesis that closed the area code is written already.
        while (i < length && number[i] == ' ')
            ++i;
        if (i < length && number[i] == ')')
            ++i;
        for (; i < length; ++i)
            if (number[i] != ' ')
                result.push(number[i]);
    }
    if (Logger::m_Traces)
        logger->debug("validNumber before : " + std::string(number) + ", after : " + result.str());
    return result.view();
}

} // namespace

std::string KesNumberingRules::makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                   std::string strPhoneNumber, std::string strPattern) {
    return makeCanonicalNumber(myKesDialRulesItem, std::move(strPhoneNumber), std::move(strPattern), false);
}

std::string KesNumberingRules::makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                   std::string strPhoneNumber, std::string strPattern,
                                                   bool withExternalPrefix) {
    return makeCanonical(myKesDialRulesItem, strPhoneNumber, strPattern, withExternalPrefix, Layout::Display);
}

std::string makeCanonical(KesDialRulesItem* myKesDialRulesItem, std::string& strPhoneNumber,
                          const std::string& strPattern, bool withExternalPrefix, Layout layout) {
    Logger* logger = KesNumberingRules::logger;
    requireArguments(myKesDialRulesItem, strPhoneNumber);
    const Conversion conversion;
    auto convert = [&]() -> std::string {
        if (contains(strPhoneNumber, "***"))
            return strPhoneNumber;
        if (Logger::m_Traces)
            logger->debug("MakeCanonicalNumber with : " + strPhoneNumber);
        trimTypedNumber(strPhoneNumber);
        if (withExternalPrefix) {
            const std::string ext = myKesDialRulesItem->getExtPrefix();
            if (ext.empty())
                return std::string();
            if (startsWith(strPhoneNumber, ext))
                strPhoneNumber.erase(0, ext.size());
        }
        TextCollector international; // a number in international form, rewritten
        const std::string_view strValid = validNumber(strPhoneNumber, international);
        const bool internationalForm = firstCharacter(strValid) == '+';
        Generation& generation = conversion.generation();
        // Only a number in international form keeps its area code; the others read it for the trace
        // the conversion has always written.
        traceExtract("extractAreaCodeOrNatPrefix", strValid);
        const CanonicalNumber typed = internationalForm ? CanonicalNumber::read(strValid) : CanonicalNumber();
        const std::string_view strAreaCode = internationalForm ? typed.area : std::string_view();

        TypedNumber kind(myKesDialRulesItem);
        if (internationalForm)
            readInternationalForm(generation, kind, typed, strValid);
        else if (!readNationalForm(generation, kind, strPhoneNumber, strValid))
            return std::move(kind.number);
        std::string canonical = canonicalForm(generation, kind, strValid, strAreaCode, internationalForm);
        if (firstCharacter(canonical) == '+')
            return formatCanonical(generation, std::move(canonical), strPattern, layout);
        return canonical;
    };
    std::string result = guardConversion(convert, [&](const char* what) {
        logConversionFailure(logger, "makeCanonicalNumber", what, strPhoneNumber,
                             ", Pattern: '" + strPattern + "'", myKesDialRulesItem);
        return std::string();
    });
    recycleString(std::move(strPhoneNumber));
    return result;
}

void KesNumberingRules::appendCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                              std::string_view strPhoneNumber, const std::string& strPattern,
                                              bool withExternalPrefix, std::string& out) {
    std::string canonical =
        makeCanonicalNumber(myKesDialRulesItem, spareCopyOf(strPhoneNumber), strPattern, withExternalPrefix);
    out += canonical;
    recycleString(std::move(canonical));
}

std::string KesNumberingRules::checkPhoneNumber(std::string_view strPhoneNumber) {
    return phoneCharactersOf(strPhoneNumber);
}

} // namespace numbering
