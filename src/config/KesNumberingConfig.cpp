#include "numbering/KesNumberingConfig.h"

#include "PropertyFiles.h"
#include "PropertyRules.h"
#include "Store.h"
#include "lifecycle/Conversion.h"
#include "lifecycle/TextKeyMap.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"
#include "numbering/number_format_exception.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <typeinfo>

namespace numbering {

KesNumberingConfig* KesNumberingConfig::instance = nullptr;
Logger* KesNumberingConfig::logger = Logger::getLogger(typeid(KesNumberingConfig).name());

int KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH = 30;
int KesNumberingConfig::MAX_COUNTRY_NUMBER_LENGTH = 3;

// Named at load time, while no configuration exists: each is the file of the start directory.
std::string KesNumberingConfig::DIALING_RULES_FILE = configFile("dialingrules.properties");
std::string KesNumberingConfig::DIALING_RULES_DEFAULT_FILE = configFile("dialingrules_default.properties");
std::string KesNumberingConfig::COUNTRY_MASKS_FILE = configFile("dlr_cnp_mask.properties");
std::string KesNumberingConfig::COUNTRY_MASKS_DEFAULT_FILE = configFile("dlr_cnp_mask_default.properties");
std::string KesNumberingConfig::SPECIFIC_FORMAT_FILE = configFile("specific_format_activation.properties");
std::string KesNumberingConfig::SPECIFIC_FORMAT_DEFAULT_FILE =
    configFile("specific_format_activation_default.properties");

namespace {

const int BUCKETS = 64;
const char* const NO_DIALING_RULES_FILE = "No specific dialing rules configuration file";
const char* const FILE_STEMS[] = {"dialingrules", "dlr_cnp_mask", "specific_format_activation"};

/// Reads the installation file `fileStem` + ".properties" of `generation`, or its default file, and
/// calls `loadKey(file, key)` for each of its root keys in ascending order. Any exception ends the
/// loading with an error line naming the store's `operation`; what was loaded before it stays.
/// True when every key was loaded.
template <class LoadKey>
bool loadEachKey(const Generation& generation, Logger* logger, const std::string& fileStem,
                 const std::string& textWhenNoFile, const char* operation, LoadKey loadKey) {
    try {
        const auto file = parseProperties(readInstallationOrDefault(generation, fileStem + ".properties",
                                                                    fileStem + "_default.properties", logger,
                                                                    textWhenNoFile, textWhenNoFile));
        Poco::Util::AbstractConfiguration::Keys keys;
        file->keys(keys);
        for (const std::string& key : keys)
            loadKey(*file, key);
        return true;
    } catch (const std::exception& e) {
        logger->error("KesNumberingConfig::" + std::string(operation) + " Exception : " + e.what());
        return false; // what was loaded before the failure stays
    }
}

} // namespace

KesNumberingConfig& loadStoreOf(Generation& generation) {
    return generation.store.getOrMake([&generation] { return new KesNumberingConfig(generation); },
                                      [&generation] { return generation.isCurrent(); });
}

std::vector<std::string> storeFileNames() {
    std::vector<std::string> names;
    for (const char* stem : FILE_STEMS) {
        names.push_back(std::string(stem) + ".properties");
        names.push_back(std::string(stem) + "_default.properties");
    }
    return names;
}

std::string KesNumberingConfig::configDirectory() {
    if (Generation* pinned = Conversion::pinnedByThread())
        return pinned->directory;
    // Not inside a conversion: the current generation's, without making one.
    std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
    Generation* current = Generation::currentIfAny();
    return current != nullptr ? current->directory : Generation::chosenDirectory();
}

std::string KesNumberingConfig::configFile(const std::string& fileName) {
    return configDirectory() + fileName;
}

KesNumberingConfig* KesNumberingConfig::getInstance() {
    const Conversion conversion; // inside a conversion, the store it pinned
    return &storeOf(conversion.generation());
}

void KesNumberingConfig::resetInstance() {
    Generation::reset(&Generation::store);
}

KesNumberingConfig::KesNumberingConfig(Generation& owner)
    : generation(owner), countryCodeByNumber(new TextKeyMap<Country>),
      countryCodeByName(new TextKeyMap<std::string>),
      countryRules(new TextKeyMap<Poco::AutoPtr<KesCountryRuleItem>>),
      countryMasks(new TextKeyMap<std::string>), specificFormatActivation(BUCKETS) {
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
}

bool KesNumberingConfig::loadDialingRules() {
    if (Logger::m_Traces)
        logger->debug("loadDialingRules()");
    const auto loadRow = [this](const Poco::Util::AbstractConfiguration& file, const std::string& code) {
        const DialingRuleFields row = splitDialingRule(file.getString(code));
        const auto& field = row.field;
        Poco::AutoPtr<KesCountryRuleItem> rule(
            new KesCountryRuleItem(field[0], field[1], field[2], field[3], field[4], field[5]));
        // Insertion never replaces: of two rows for the same key, the first in key order stays.
        KesCountryRuleItem* stored = countryRules->insert(code, rule).get();
        if (row.primary()) {
            // What KesDialRulesItem(code, "", 0, "", 0, "") makes, without asking the configuration
            // in use, which a reload has not replaced yet.
            std::unique_ptr<KesDialRulesItem> nationalRules;
            if (code.size() == 2) {
                nationalRules.reset(new KesDialRulesItem);
                nationalRules->countryId = code;
            }
            countryCodeByNumber->insert(row.callingCode(), Country{code, stored, std::move(nationalRules)});
        }
        countryCodeByName->insert(row.name(), code);
    };
    return loadEachKey(generation, logger, "dialingrules", NO_DIALING_RULES_FILE, "loadDialingRules",
                       loadRow);
}

void KesNumberingConfig::createListCountryDisplay() {
    if (Logger::m_Traces)
        logger->debug("createListCountryDisplay()");
    countryCodeByName->forEach(
        [this](std::string_view name, const std::string&) { countryList.emplace_back(name); });
    std::sort(countryList.begin(), countryList.end());
}

bool KesNumberingConfig::loadCountryMasks() {
    if (Logger::m_Traces)
        logger->debug("loadCountryMasks()");
    std::size_t loaded = 0;
    const auto loadMask = [this, &loaded](const Poco::Util::AbstractConfiguration& file,
                                          const std::string& key) {
        const MaskKey maskKey = readMaskKey(key);
        if (maskKey.skipped != MaskKey::Skipped::No)
            return;
        std::string mask = file.getString(key);
        if (mask.empty())
            return;
        countryMasks->insert(maskKey.callingCode, mask);
        ++loaded;
    };
    // The info text names the dialing rules although the masks are meant: hosts grep for it.
    const bool complete =
        loadEachKey(generation, logger, "dlr_cnp_mask", NO_DIALING_RULES_FILE, "loadCountryMasks", loadMask);
    if (complete && Logger::m_Traces) {
        // The count is added to the start of the text rather than printed: it skips that many
        // characters ("untry masks loaded" for three masks).
        static const std::string loadedText = " country masks loaded";
        logger->debug(loaded < loadedText.size() ? loadedText.substr(loaded) : std::string());
    }
    return complete;
}

bool KesNumberingConfig::loadSpecificFormatActivation() {
    if (Logger::m_Traces)
        logger->debug("loadSpecificFormatActivation()");
    const auto loadSwitch = [this](const Poco::Util::AbstractConfiguration& file, const std::string& key) {
        const std::optional<std::string> activationKey = readActivationKey(key);
        if (!activationKey)
            return;
        const std::string& countryNumber = *activationKey;
        std::string code;
        try {
            code = getCountryCodeFromNumber(countryNumber);
        } catch (const number_format_exception&) {
        }
        if (code.empty()) {
            if (Logger::m_Traces)
                logger->debug("Invalid property 'cnp_" + countryNumber + "'");
            return;
        }
        const std::string value = file.getString(key);
        const Switch readValue = readSwitch(value);
        if (readValue == Switch::Empty)
            return;
        if (readValue == Switch::Invalid) {
            if (Logger::m_Traces)
                logger->debug("Invalid value for property 'cnp_' : " + value);
            return;
        }
        const bool active = readValue == Switch::On;
        if (Logger::m_Traces)
            logger->debug(
                (active ? "Activating specific format for " : "Desactivating specific format for ") +
                getCountryName(code));
        // Every switch is filed under 0, whatever its country number, and the first one stays:
        // only a country number reading as 0 ever sees it (see isSpecificFormatActiveForCountry).
        specificFormatActivation.insert(std::make_pair(0, active));
    };
    return loadEachKey(generation, logger, "specific_format_activation",
                       "No specific format activation configuration file", "loadSpecificFormatActivation",
                       loadSwitch);
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
    const std::string* code = countryCodeByName->find(name);
    return code == nullptr ? std::string() : *code;
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
    // Every look-up by code demands two characters.
    if (code.size() != 2)
        return nullptr;
    Poco::AutoPtr<KesCountryRuleItem>* rule = countryRules->find(code);
    return rule == nullptr ? nullptr : rule->get();
}

const KesNumberingConfig::Country* KesNumberingConfig::findCountry(std::string_view number) const {
    return number.empty() ? nullptr : countryCodeByNumber->find(number);
}

const std::string* KesNumberingConfig::findCountryCode(std::string_view number) const {
    const Country* country = findCountry(number);
    return country == nullptr ? nullptr : &country->code;
}

KesCountryRuleItem* KesNumberingConfig::findCountryRuleOfNumber(std::string_view number) const {
    const Country* country = countryCodeByNumber->find(number);
    return country == nullptr ? nullptr : country->rule;
}

std::size_t KesNumberingConfig::countryNumberLength(std::string_view number) const {
    // Shortest first, and up to four characters although calling codes have at most three.
    for (std::size_t n = 1; n <= 4 && n <= number.size(); ++n)
        if (countryCodeByNumber->find(number.substr(0, n)) != nullptr)
            return n;
    return 0;
}

const std::string* KesNumberingConfig::findDefaultPattern(std::string_view countryNumber) const {
    return countryNumber.empty() ? nullptr : countryMasks->find(countryNumber);
}

} // namespace numbering
