#include "numbering/KesNumberingRules.h"

#include "CanonicalParts.h"
#include "ConversionGuard.h"
#include "FacadeInternals.h"
#include "NumberText.h"
#include "config/Configuration.h"
#include "numbering/KesCNP.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesDialable.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <typeinfo>

namespace numbering {

KesNumberingRules* KesNumberingRules::instance = nullptr;
KesNumberingConfig* KesNumberingRules::config = nullptr;
Logger* KesNumberingRules::logger = Logger::getLogger(typeid(KesNumberingRules).name());

std::string KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER = "*#ABCD";
std::string KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER = " ()-.";

namespace {

/// The facade, published for getInstance()'s look-up without a lock; `instance` mirrors it.
std::atomic<KesNumberingRules*> facade{nullptr};

/// Keeps `config` on the current store when a reload replaces it.
void followCurrentStore() {
    if (KesNumberingRules::instance != nullptr)
        KesNumberingRules::config = KesNumberingConfig::instance;
}

} // namespace

KesNumberingRules* KesNumberingRules::getInstance() {
    if (KesNumberingRules* made = facade.load(std::memory_order_acquire))
        return made;
    std::lock_guard<std::recursive_mutex> lock(Configuration::lifecycle());
    if (instance == nullptr) {
        instance = new KesNumberingRules();
        facade.store(instance, std::memory_order_release);
    }
    return instance;
}

void KesNumberingRules::resetInstance() {
    if (Logger::m_Traces)
        logger->debug("Releasing resources");
    std::lock_guard<std::recursive_mutex> lock(Configuration::lifecycle());
    // The caches hold plans and strategies built from the store's rules: they go first.
    KesCNPManager::resetInstance();
    KesDialableManager::resetInstance();
    KesNumberingConfig::resetInstance();
    config = nullptr;
    facade.store(nullptr, std::memory_order_release);
    // The class has no virtual destructor; the singleton is always made by getInstance() as a
    // KesNumberingRules itself, so the destructor called here is the right one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdelete-non-virtual-dtor"
    delete instance;
#pragma GCC diagnostic pop
    instance = nullptr;
}

void KesNumberingRules::reload() {
    Configuration::reload(nullptr, followCurrentStore);
}

void KesNumberingRules::reload(const std::string& configDirectory) {
    Configuration::reload(&configDirectory, followCurrentStore);
}

KesNumberingRules::KesNumberingRules() {
    if (Logger::m_Traces)
        logger->debug("KesNumberingRules()");
    if (config == nullptr)
        config = KesNumberingConfig::getInstance();
}

std::vector<std::string> KesNumberingRules::getCountryList() {
    PinnedConfiguration pin;
    return pin.store()->getCountryList();
}

std::string KesNumberingRules::getCountryCode(std::string countryName) {
    PinnedConfiguration pin;
    return pin.store()->getCountryCodeFromName(std::move(countryName));
}

std::string KesNumberingRules::getCountryName(std::string countryCode) {
    PinnedConfiguration pin;
    return pin.store()->getCountryName(std::move(countryCode));
}

std::string KesNumberingRules::getCountryCodeFromNumber(std::string countryNumber) {
    PinnedConfiguration pin;
    return pin.store()->getCountryCodeFromNumber(std::move(countryNumber));
}

namespace {

/// The dialing rules that read a national number of the destination country `countryCode`: those
/// of KesDialRulesItem(countryCode, "", 0, "", 0, ""), no outside-line prefix and no area code. They
/// depend on the code alone, so each thread keeps the last ones it made rather than making them for
/// every international number. A code the store gave is valid, as the constructor requires.
KesDialRulesItem* destinationRulesOf(const std::string& countryCode) {
    thread_local std::optional<KesDialRulesItem> last;
    if (!last || last->getCountryId() != countryCode)
        last.emplace(countryCode, "", 0, "", 0, "");
    return &*last;
}

/// Where the canonical conversion stands once it has told what kind of number it holds.
struct Conversion {
    std::string canNumber;      // the number being converted
    std::string strCountryCode; // the country it belongs to, "" when unknown
    bool kindKnown = false;     // recognised as international or national
    KesDialRulesItem* rules;    // the installation's rules, or those of the destination country
    KesDialRulesItem* destinationRules = nullptr;

    explicit Conversion(KesDialRulesItem* installation) : rules(installation) {}

    /// From here on the number is a national number of `countryCode`, read with that country's rules.
    void takeDestination(const std::string& countryCode) {
        destinationRules = destinationRulesOf(countryCode);
        rules = destinationRules;
        strCountryCode = countryCode;
        kindKnown = true;
    }
};

/// The digits and service characters of a number not in international form; the scan ends at a
/// "|". Sets `serviceCode` when a service character is met; any character that is neither a digit
/// nor a presentation character rejects the number.
std::string cleanNationalNumber(std::string_view strValid, bool& serviceCode) {
    TextCollector digits;
    const std::string_view::size_type end = indexOf(strValid, '|');
    const std::string_view::size_type length = end == std::string_view::npos ? strValid.size() : end;
    for (std::string_view::size_type i = 0; i < length; ++i) {
        const char c = strValid[i];
        if (isDigit(c)) {
            digits.push(c);
        } else if (isServiceCharacter(c)) {
            digits.push(c);
            serviceCode = true;
        } else if (!isFormatCharacter(c)) {
            if (Logger::m_Traces)
                KesNumberingRules::logger->debug("MakeCanonical : wrong character in number : " +
                                                 std::string(strValid));
            throw std::invalid_argument("'strPhoneNumber' parameter is not a phone number");
        }
    }
    return digits.str();
}

/// A number dialled with the international prefix: finds the destination country behind it and any
/// operator prefix. Calling back into the own country keeps the operator prefix, since it is dialled
/// nationally as well; calling another country drops it.
void readInternationalPrefix(Conversion& work, const std::string& strPhoneNumber, const std::string& digits,
                             const std::string& internatPfx, KesCountryRuleItem* countryRule) {
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    Logger* logger = KesNumberingRules::logger;
    KesDialable* dialable = requireDialable(countryRule->countryNumberText());
    const std::string opPrefix = dialable->extractOperatorPrefix(digits.substr(internatPfx.size()));
    const std::string::size_type skip = internatPfx.size() + opPrefix.size();
    const std::string afterPrefixes = digits.substr(skip);
    const std::string_view countryNumber(afterPrefixes.data(), config->countryNumberLength(afterPrefixes));
    const std::string* destCode = config->findCountryCode(countryNumber);
    if (destCode == nullptr) {
        if (Logger::m_Traces)
            logger->debug("International number detected but no country code was found '" + strPhoneNumber +
                          "'");
        return;
    }
    if (Logger::m_Traces)
        logger->debug("International number detected : '" + digits + "' with CountryCode '" + *destCode +
                      "'");
    work.canNumber = requireCountryRule(config, *destCode)->longDistPrefixText();
    if (*destCode == work.strCountryCode)
        work.canNumber += opPrefix;
    work.canNumber.append(afterPrefixes, countryNumber.size(), std::string::npos);
    work.takeDestination(*destCode);
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
            return true;
        }
        return false;
    }
    if (startsWith(strPhoneNumber, ldp)) {
        if (Logger::m_Traces)
            logger->debug("National number detected '" + strPhoneNumber + "'");
        return true;
    }
    return false;
}

/// A number in international form: its calling code names the country, and the rest is written as
/// that country dials it nationally, so that the country's plan can take it from there.
void readInternationalForm(Conversion& work, std::string_view strValid) {
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    std::string_view countryNumber = countryNumberOf(strValid);
    const std::string* countryCode;
    if (countryNumber.empty()) {
        countryNumber = strValid.substr(1, config->countryNumberLength(strValid.substr(1)));
        countryCode = config->findCountryCode(countryNumber);
    } else {
        countryCode = config->findCountryCode(countryNumber);
        // "+33123456789": the run of digits is more than the calling code.
        if (countryCode == nullptr) {
            countryNumber = countryNumber.substr(0, config->countryNumberLength(countryNumber));
            countryCode = config->findCountryCode(countryNumber);
        }
    }
    if (countryCode == nullptr) {
        if (Logger::m_Traces)
            KesNumberingRules::logger->debug("No country code found for country number '" +
                                             std::string(countryNumber) + "'");
        return;
    }
    TextCollector digits;
    for (std::string_view::size_type i = countryNumber.size() + 1; i < strValid.size(); ++i)
        if (isDigit(strValid[i]))
            digits.push(strValid[i]);
    std::string national = digits.str();
    work.takeDestination(*countryCode);
    KesCountryRuleItem* countryRule = requireCountryRule(config, work.strCountryCode);
    std::string noArea;
    work.canNumber = requireDialable(std::string(countryNumber))
                         ->makeLongDistDialableNumber(noArea, national, countryRule, work.rules);
}

/// The digits and service characters of `number` into `result`, or nothing when it holds a
/// character that is neither those nor a presentation character.
void keepPhoneCharacters(std::string_view number, std::string& result) {
    for (char c : number) {
        if (isDigit(c) || isServiceCharacter(c)) {
            result += c;
        } else if (!isFormatCharacter(c)) {
            result.clear();
            return;
        }
    }
}

/// Whether the outside-line prefix goes in front of `number` (as isPrefixNeeded).
bool prefixNeeded(KesDialRulesItem* rules, const std::string& number) {
    if (static_cast<long>(number.size()) < rules->getLocalNbLength())
        return false;
    return !rules->isExceptionNumber(number);
}

} // namespace

std::string KesNumberingRules::makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                   std::string strPhoneNumber, std::string strPattern) {
    return makeCanonicalNumber(myKesDialRulesItem, std::move(strPhoneNumber), std::move(strPattern), false);
}

std::string KesNumberingRules::makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                                   std::string strPhoneNumber, std::string strPattern,
                                                   bool withExternalPrefix) {
    requireArguments(myKesDialRulesItem, strPhoneNumber);
    PinnedConfiguration pin;
    KesNumberingConfig* config = pin.store();
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
        std::string layout;
        const std::string_view strValid = validNumber(strPhoneNumber, layout);
        const std::string_view strAreaCode = areaCodeOrNatPrefixOf(strValid);
        const bool internationalForm = firstCharacter(strValid) == '+';

        Conversion work(myKesDialRulesItem);
        if (!internationalForm) {
            bool serviceCode = false;
            std::string digits = cleanNationalNumber(strValid, serviceCode);
            if (serviceCode)
                return digits; // a service code is never made canonical
            work.strCountryCode = myKesDialRulesItem->getCountryId();
            KesCountryRuleItem* countryRule = requireCountryRule(config, work.strCountryCode);
            const std::string& internatPfx = countryRule->internatPfxText();
            // The prefix tests look at the number as typed, not at its digits.
            if (prefixNeeded(myKesDialRulesItem, strPhoneNumber)) {
                if (startsWith(strPhoneNumber, internatPfx))
                    readInternationalPrefix(work, strPhoneNumber, digits, internatPfx, countryRule);
                else
                    work.kindKnown = isNationalByPrefix(strPhoneNumber, countryRule);
            }
            // Unless the international prefix led to another country's national number.
            if (!work.destinationRules)
                work.canNumber = std::move(digits);
        } else {
            readInternationalForm(work, strValid);
        }

        // The country's plan, or the generic rules, write the number in canonical form.
        std::string& canNumber = work.canNumber;
        if (work.strCountryCode.empty()) {
            canNumber = strValid;
        } else {
            KesCNP* plan = KesCNPManager::getInstance()->getCNP(work.strCountryCode);
            KesDialRulesItem* rules = work.rules;
            bool needed = true;
            if (rules->isLocalNumber(canNumber) || rules->isExceptionNumber(canNumber))
                needed = startsWith(canNumber, rules->getExtPrefix()) || internationalForm;
            if (!needed) {
                if (Logger::m_Traces)
                    logger->debug("Nothing to do for" + canNumber);
            } else if (plan != nullptr) {
                std::string cleaned = checkPhoneNumber(canNumber);
                if (cleaned.empty()) {
                    if (Logger::m_Traces)
                        logger->debug("Altered Source Number : '" + canNumber + "'");
                } else {
                    canNumber = std::move(cleaned);
                    if (!contains(canNumber, "***")) {
                        if (Logger::m_Traces)
                            logger->debug("Source number to be altered : '" + canNumber + "'");
                        canNumber = plan->dlr_Country_MakeCanonicalNumber(std::move(canNumber), rules);
                    }
                }
            } else {
                if (Logger::m_Traces)
                    logger->debug("No special format defined for country " + work.strCountryCode);
                if (internationalForm)
                    canNumber =
                        defaultCanonicalNumber(std::move(canNumber), work.strCountryCode, strAreaCode);
                else if (work.kindKnown)
                    canNumber = defaultCanonicalNumber(std::move(canNumber), work.strCountryCode, "");
                else if (Logger::m_Traces)
                    logger->debug("Can't translate to a canonical phone number : we don't known if '" +
                                  canNumber + "' is a local or national phone number");
            }
        }
        if (firstCharacter(canNumber) == '+')
            return formatCanonical(canNumber, strPattern);
        return std::move(canNumber);
    };
    return guardConversion(convert, [&](const char* what) {
        logConversionFailure(logger, "makeCanonicalNumber", what, strPhoneNumber,
                             ", Pattern: '" + strPattern + "'", myKesDialRulesItem);
        return std::string();
    });
}

std::string_view KesNumberingRules::validNumber(const std::string& strPhoneNumber, std::string& layout) {
    const std::string_view number = trimmed(strPhoneNumber);
    if (number.size() < 2 || number[0] != '+')
        return number;
    const std::string_view::size_type length = number.size();
    std::string& result = layout;
    result += '+';
    std::string_view::size_type i = 1;
    while (i < length && !isDigit(number[i]))
        ++i;
    while (i < length && isDigit(number[i]))
        result += number[i++];
    while (i < length && !isDigit(number[i]))
        ++i;
    // The next run of digits is the area code, unless the number was written without separators
    // ("+33123456789") or nothing follows the calling code: then the calling code stands alone.
    if (i < length) {
        result += " (";
        while (i < length && isDigit(number[i]))
            result += number[i++];
        result += ") ";
        if (Logger::m_Traces)
            logger->debug("ValidNumber CountryCode + AreaCode : " + result);
        // The parenthesis that closed the area code is written already.
        while (i < length && number[i] == ' ')
            ++i;
        if (i < length && number[i] == ')')
            ++i;
        for (; i < length; ++i)
            if (number[i] != ' ')
                result += number[i];
    }
    if (Logger::m_Traces)
        logger->debug("validNumber before : " + std::string(number) + ", after : " + result);
    return result;
}

std::string KesNumberingRules::checkPhoneNumber(std::string_view strPhoneNumber) {
    std::string result;
    // The usual case, digits only, is the number itself.
    if (std::all_of(strPhoneNumber.begin(), strPhoneNumber.end(), isDigit))
        result.assign(strPhoneNumber);
    else
        keepPhoneCharacters(strPhoneNumber, result);
    if (Logger::m_Traces)
        logger->debug("checkPhoneNumber('" + std::string(strPhoneNumber) + "') returns '" + result + "'");
    return result;
}

} // namespace numbering
