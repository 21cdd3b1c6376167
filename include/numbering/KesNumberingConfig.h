#ifndef NUMBERING_KESNUMBERINGCONFIG_H
#define NUMBERING_KESNUMBERINGCONFIG_H

#include "numbering/Export.h"
#include "numbering/KesCountryRuleItem.h"

#include <Poco/AutoPtr.h>
#include <Poco/HashMap.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

class Configuration;
template <class Value> class TextKeyMap;

/// The process-wide store of per-country telephony facts: the dialing rules (country code,
/// calling code, prefixes, rules, name), the display masks and the specific-format switches.
/// Loaded by the first getInstance() and immutable afterwards, so any thread reads it without a lock.
/// KesNumberingRules::reload() replaces it with a new store read from the files while conversions
/// go on: a conversion keeps the store it started with to its end.
class NUMBERING_API KesNumberingConfig {
public:
    /// The store of the configuration in use: the one the calling thread's conversion started
    /// with, else the current one (made on first use). Like every pointer and reference it hands
    /// out (getCountryRule, getCountryList), it stays valid until the first reload after the call
    /// has completed.
    static KesNumberingConfig* getInstance();
    /// Destroys the current store with the plan and strategy caches built on it; the next
    /// getInstance() reads every file again. Only when no conversion runs (see KesNumberingRules::reload).
    static void resetInstance();

    virtual ~KesNumberingConfig();

    virtual bool isSpecificFormatActiveForCountry(std::string countryNumber);
    virtual std::string getDefaultPattern(std::string countryNumber);
    virtual std::vector<std::string>& getCountryList();
    virtual std::string getCountryCodeFromName(std::string name);
    virtual std::string getCountryCodeFromNumber(std::string number);
    virtual std::string getCountryName(std::string code);
    virtual std::string getCountryNumber(std::string code);
    virtual bool validCountryCode(std::string code);
    /// The record of `code`, or null. The store keeps ownership: do not release it.
    virtual KesCountryRuleItem* getCountryRule(std::string code);
    /// The shortest primary calling code (1 to 4 characters) at the head of `number`, or "".
    virtual std::string extractCountryNumber(std::string number);

    // The same look-ups for the conversions, answered from a flat index without copying the key
    // or the answer: null (or 0) where the operations above answer "" or null.

    /// As getCountryRule.
    KesCountryRuleItem* findCountryRule(std::string_view code) const;
    /// As getCountryCodeFromNumber.
    const std::string* findCountryCode(std::string_view number) const;
    /// getCountryRule(getCountryCodeFromNumber(number)).
    KesCountryRuleItem* findCountryRuleOfNumber(std::string_view number) const;
    /// The length of extractCountryNumber(number).
    std::size_t countryNumberLength(std::string_view number) const;
    /// As getDefaultPattern.
    const std::string* findDefaultPattern(std::string_view countryNumber) const;

    bool loadDialingRules();
    void createListCountryDisplay();
    bool loadCountryMasks();
    bool loadSpecificFormatActivation();

    /// The directory the configuration in use was read from (with a trailing "/"): the one given to
    /// the last KesNumberingRules::reload(directory), else NUMBERING_CONFIG_DIR as it was when the
    /// library was loaded, else "/current/tele_mnt/lib_numbering/".
    static std::string configDirectory();
    /// `fileName` in configDirectory().
    static std::string configFile(const std::string& fileName);

    /// The current store (null when none is loaded), for inspection only: it changes with every
    /// reload, so read the store through getInstance().
    static KesNumberingConfig* instance;
    static Logger* logger;

    static int MAX_PHONE_NUMBER_LENGTH;
    static int MAX_COUNTRY_NUMBER_LENGTH;

    /// The file names in the directory of the library's start; a store reads the same names in
    /// its own directory.
    static std::string DIALING_RULES_FILE;
    static std::string DIALING_RULES_DEFAULT_FILE;
    static std::string COUNTRY_MASKS_FILE;
    static std::string COUNTRY_MASKS_DEFAULT_FILE;
    static std::string SPECIFIC_FORMAT_FILE;
    static std::string SPECIFIC_FORMAT_DEFAULT_FILE;

private:
    friend class Configuration;
    explicit KesNumberingConfig(const std::string& configurationDirectory);
    KesNumberingConfig(const KesNumberingConfig&) = delete;
    KesNumberingConfig& operator=(const KesNumberingConfig&) = delete;

    /// The country of a primary calling code.
    struct Country {
        std::string code;
        KesCountryRuleItem* rule; // null when the code names no record
    };

    const std::string directory;                              // where this store's files are read
    std::unique_ptr<TextKeyMap<Country>> countryCodeByNumber; // primary rows only
    std::unique_ptr<TextKeyMap<std::string>> countryCodeByName;
    std::unique_ptr<TextKeyMap<Poco::AutoPtr<KesCountryRuleItem>>> countryRules;
    std::unique_ptr<TextKeyMap<std::string>> countryMasks;
    std::vector<std::string> countryList;
    Poco::HashMap<int, bool> specificFormatActivation;
};

} // namespace numbering

#endif
