#include "numbering/KesNumberingConfig.h"

#include "PropertyFiles.h"
#include "ShortKeyIndex.h"
#include "numbering/KesCNP_33.h"
#include "numbering/KesCNP_57.h"
#include "numbering/KesCNP_7.h"
#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include <Poco/String.h>
#include <Poco/StringTokenizer.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <typeinfo>

namespace numbering {

KesNumberingConfig* KesNumberingConfig::instance = nullptr;
Logger* KesNumberingConfig::logger = Logger::getLogger(typeid(KesNumberingConfig).name());

int KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH = 30;
int KesNumberingConfig::MAX_COUNTRY_NUMBER_LENGTH = 3;

std::string KesNumberingConfig::DIALING_RULES_FILE = configFile("dialingrules.properties");
std::string KesNumberingConfig::DIALING_RULES_DEFAULT_FILE = configFile("dialingrules_default.properties");
std::string KesNumberingConfig::COUNTRY_MASKS_FILE = configFile("dlr_cnp_mask.properties");
std::string KesNumberingConfig::COUNTRY_MASKS_DEFAULT_FILE = configFile("dlr_cnp_mask_default.properties");
std::string KesNumberingConfig::SPECIFIC_FORMAT_FILE = configFile("specific_format_activation.properties");
std::string KesNumberingConfig::SPECIFIC_FORMAT_DEFAULT_FILE =
    configFile("specific_format_activation_default.properties");

/// The maps the conversions read, by short key: the records by country code, the country (code and
/// record) of each primary calling code, and the masks. Longer keys are looked up in the maps.
struct KesNumberingConfig::Index {
    struct Country {
        std::string code;
        KesCountryRuleItem* rule; // null when the code names no record
    };
    ShortKeyIndex<KesCountryRuleItem*> rules;
    ShortKeyIndex<Country> countries;
    ShortKeyIndex<std::string> masks;
};

namespace {

const int BUCKETS = 64;
const char* const NO_DIALING_RULES_FILE = "No specific dialing rules configuration file";

} // namespace

std::string KesNumberingConfig::configDirectory() {
    const char* overridden = std::getenv("NUMBERING_CONFIG_DIR");
    if (overridden == nullptr || *overridden == '\0')
        return "/current/tele_mnt/lib_numbering/";
    std::string directory(overridden);
    if (directory.back() != '/')
        directory += '/';
    return directory;
}

std::string KesNumberingConfig::configFile(const std::string& fileName) {
    return configDirectory() + fileName;
}

KesNumberingConfig* KesNumberingConfig::getInstance() {
    if (instance == nullptr)
        instance = new KesNumberingConfig();
    return instance;
}

void KesNumberingConfig::resetInstance() {
    delete instance;
    instance = nullptr;
}

KesNumberingConfig::KesNumberingConfig()
    : countryCodeByNumber(BUCKETS), countryCodeByName(BUCKETS), countryRules(BUCKETS), countryMasks(BUCKETS),
      specificFormatActivation(BUCKETS), index(new Index) {
    if (Logger::m_Traces)
        logger->debug("KesNumberingConfig()");
    loadDialingRules();
    createListCountryDisplay();
    loadCountryMasks();
    loadSpecificFormatActivation();
}

KesNumberingConfig::~KesNumberingConfig() {
    if (Logger::m_Traces)
        logger->debug("~KesNumberingConfig()");
    // Plans that keep the store must not point at a destroyed one; they fetch the next on use.
    KesCNP_33::config = KesCNP_57::config = KesCNP_7::config = nullptr;
    countryCodeByNumber.clear();
    countryCodeByName.clear();
    countryRules.clear();
    countryMasks.clear();
    countryList.clear();
    specificFormatActivation.clear();
}

bool KesNumberingConfig::loadDialingRules() {
    if (Logger::m_Traces)
        logger->debug("loadDialingRules()");
    bool complete = true;
    try {
        PropertyFile file = openInstallationOrDefault(DIALING_RULES_FILE, DIALING_RULES_DEFAULT_FILE, logger,
                                                      NO_DIALING_RULES_FILE, NO_DIALING_RULES_FILE);
        Poco::Util::AbstractConfiguration::Keys codes;
        file->keys(codes);
        for (const std::string& code : codes) {
            // number:internatPfx:internatRule:longDistRule:localRule:name:P, missing fields empty.
            Poco::StringTokenizer fields(file->getString(code), ":");
            std::string field[7];
            for (std::size_t i = 0; i < 7 && i < fields.count(); ++i)
                field[i] = fields[i];
            Poco::AutoPtr<KesCountryRuleItem> rule(
                new KesCountryRuleItem(field[0], field[1], field[2], field[3], field[4], field[5]));
            // Insertion never replaces: of two rows for the same key, the first in key order stays.
            if (field[6] == "P")
                countryCodeByNumber.insert(std::make_pair(field[0], code));
            countryCodeByName.insert(std::make_pair(field[5], code));
            countryRules.insert(std::make_pair(code, rule));
        }
    } catch (const std::exception& e) {
        logger->error(std::string("KesNumberingConfig::loadDialingRules Exception : ") + e.what());
        complete = false; // what was loaded before the failure stays
    }
    reindex();
    return complete;
}

void KesNumberingConfig::reindex() {
    index->rules.assignFrom(countryRules, [](auto& entry) { return entry.second.get(); });
    index->countries.assignFrom(countryCodeByNumber, [this](auto& entry) {
        return Index::Country{entry.second, findCountryRule(entry.second)};
    });
    index->masks.assignFrom(countryMasks, [](auto& entry) { return entry.second; });
}

void KesNumberingConfig::createListCountryDisplay() {
    if (Logger::m_Traces)
        logger->debug("createListCountryDisplay()");
    for (const auto& entry : countryCodeByName)
        countryList.push_back(entry.first);
    std::sort(countryList.begin(), countryList.end());
}

bool KesNumberingConfig::loadCountryMasks() {
    if (Logger::m_Traces)
        logger->debug("loadCountryMasks()");
    bool complete = true;
    try {
        // The info text names the dialing rules although the masks are meant: hosts grep for it.
        PropertyFile file = openInstallationOrDefault(COUNTRY_MASKS_FILE, COUNTRY_MASKS_DEFAULT_FILE, logger,
                                                      NO_DIALING_RULES_FILE, NO_DIALING_RULES_FILE);
        Poco::Util::AbstractConfiguration::Keys keys;
        file->keys(keys);
        std::size_t loaded = 0;
        for (const std::string& key : keys) {
            // "Mask_" may stand anywhere in the key, yet the country number is always cut from the
            // sixth character up to the next "_".
            if (key.find("Mask_") == std::string::npos)
                continue;
            std::string::size_type end = key.find('_', 5);
            if (end == std::string::npos)
                continue;
            std::string countryNumber = key.substr(5, end - 5);
            if (countryNumber.empty() || countryNumber.size() > 3)
                continue;
            std::string mask = file->getString(key);
            if (mask.empty())
                continue;
            countryMasks.insert(std::make_pair(countryNumber, mask));
            ++loaded;
        }
        if (Logger::m_Traces) {
            // The count is added to the start of the text rather than printed: it skips that many
            // characters ("untry masks loaded" for three masks).
            static const std::string loadedText = " country masks loaded";
            logger->debug(loaded < loadedText.size() ? loadedText.substr(loaded) : std::string());
        }
    } catch (const std::exception& e) {
        logger->error(std::string("KesNumberingConfig::loadCountryMasks Exception : ") + e.what());
        complete = false; // what was loaded before the failure stays
    }
    reindex();
    return complete;
}

bool KesNumberingConfig::loadSpecificFormatActivation() {
    if (Logger::m_Traces)
        logger->debug("loadSpecificFormatActivation()");
    try {
        PropertyFile file =
            openInstallationOrDefault(SPECIFIC_FORMAT_FILE, SPECIFIC_FORMAT_DEFAULT_FILE, logger,
                                      "No specific format activation configuration file",
                                      "No specific format activation configuration file");
        Poco::Util::AbstractConfiguration::Keys keys;
        file->keys(keys);
        for (const std::string& key : keys) {
            if (key.compare(0, 4, "cnp_") != 0 || key.size() < 5 || key.size() > 7)
                continue;
            std::string countryNumber = key.substr(4);
            std::string code;
            try {
                code = getCountryCodeFromNumber(countryNumber);
            } catch (const number_format_exception&) {
            }
            if (code.empty()) {
                if (Logger::m_Traces)
                    logger->debug("Invalid property 'cnp_" + countryNumber + "'");
                continue;
            }
            std::string value = file->getString(key);
            if (value.empty())
                continue;
            std::string lower = Poco::toLower(value);
            bool active;
            if (lower == "true" || lower == "on" || lower == "1") {
                if (Logger::m_Traces)
                    logger->debug("Activating specific format for " + getCountryName(code));
                active = true;
            } else if (lower == "false" || lower == "off" || lower == "0") {
                if (Logger::m_Traces)
                    logger->debug("Desactivating specific format for " + getCountryName(code));
                active = false;
            } else {
                if (Logger::m_Traces)
                    logger->debug("Invalid value for property 'cnp_' : " + value);
                continue;
            }
            // Every switch is filed under 0, whatever its country number, and the first one stays:
            // only a country number reading as 0 ever sees it (see isSpecificFormatActiveForCountry).
            specificFormatActivation.insert(std::make_pair(0, active));
        }
        return true;
    } catch (const std::exception& e) {
        logger->error(std::string("KesNumberingConfig::loadSpecificFormatActivation Exception : ") +
                      e.what());
        return false;
    }
}

bool KesNumberingConfig::isSpecificFormatActiveForCountry(std::string countryNumber) {
    if (countryNumber.empty())
        return true;
    int key = static_cast<int>(std::strtol(countryNumber.c_str(), nullptr, 10));
    auto found = specificFormatActivation.find(key);
    return found == specificFormatActivation.end() ? true : found->second;
}

std::string KesNumberingConfig::getDefaultPattern(std::string countryNumber) {
    const std::string* mask = findDefaultPattern(countryNumber);
    return mask == nullptr ? std::string() : *mask;
}

std::vector<std::string>& KesNumberingConfig::getCountryList() {
    return countryList;
}

std::string KesNumberingConfig::getCountryCodeFromName(std::string name) {
    if (name.empty())
        return std::string();
    auto found = countryCodeByName.find(name);
    return found == countryCodeByName.end() ? std::string() : found->second;
}

std::string KesNumberingConfig::getCountryCodeFromNumber(std::string number) {
    const std::string* code = findCountryCode(number);
    return code == nullptr ? std::string() : *code;
}

KesCountryRuleItem* KesNumberingConfig::getCountryRule(std::string code) {
    return findCountryRule(code);
}

std::string KesNumberingConfig::getCountryName(std::string code) {
    KesCountryRuleItem* rule = findCountryRule(code);
    return rule == nullptr ? std::string() : rule->getCountryName();
}

std::string KesNumberingConfig::getCountryNumber(std::string code) {
    KesCountryRuleItem* rule = findCountryRule(code);
    return rule == nullptr ? std::string() : rule->getCountryNumber();
}

bool KesNumberingConfig::validCountryCode(std::string code) {
    return findCountryRule(code) != nullptr;
}

std::string KesNumberingConfig::extractCountryNumber(std::string number) {
    number.resize(countryNumberLength(number));
    return number;
}

KesCountryRuleItem* KesNumberingConfig::findCountryRule(std::string_view code) const {
    // Every look-up by code demands two characters, which the index always holds.
    if (code.size() != 2)
        return nullptr;
    KesCountryRuleItem* const* rule = index->rules.find(code);
    return rule == nullptr ? nullptr : *rule;
}

const std::string* KesNumberingConfig::findCountryCode(std::string_view number) const {
    if (number.empty())
        return nullptr;
    if (ShortKeyIndex<Index::Country>::indexable(number)) {
        const Index::Country* country = index->countries.find(number);
        return country == nullptr ? nullptr : &country->code;
    }
    auto found = countryCodeByNumber.find(std::string(number));
    return found == countryCodeByNumber.end() ? nullptr : &found->second;
}

KesCountryRuleItem* KesNumberingConfig::findCountryRuleOfNumber(std::string_view number) const {
    if (ShortKeyIndex<Index::Country>::indexable(number)) {
        const Index::Country* country = index->countries.find(number);
        return country == nullptr ? nullptr : country->rule;
    }
    const std::string* code = findCountryCode(number);
    return code == nullptr ? nullptr : findCountryRule(*code);
}

std::size_t KesNumberingConfig::countryNumberLength(std::string_view number) const {
    // Shortest first, and up to four characters although calling codes have at most three.
    for (std::size_t n = 1; n <= 4 && n <= number.size(); ++n)
        if (index->countries.find(number.substr(0, n)) != nullptr)
            return n;
    return 0;
}

const std::string* KesNumberingConfig::findDefaultPattern(std::string_view countryNumber) const {
    if (countryNumber.empty())
        return nullptr;
    if (ShortKeyIndex<std::string>::indexable(countryNumber))
        return index->masks.find(countryNumber);
    auto found = countryMasks.find(std::string(countryNumber));
    return found == countryMasks.end() ? nullptr : &found->second;
}

} // namespace numbering
