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

/// The process-wide store of per-country telephony facts: the dialing rules (country code,
/// calling code, prefixes, rules, name), the display masks and the specific-format switches.
/// Loaded once by the first getInstance(); resetInstance() is the only way to reload.
/// Not synchronised: the host creates it before concurrent use and resets it only when idle.
class NUMBERING_API KesNumberingConfig {
public:
    static KesNumberingConfig* getInstance();
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

    /// The directory every configuration file name is built from: "/current/tele_mnt/lib_numbering/",
    /// or the value of NUMBERING_CONFIG_DIR when that variable is set (read when called).
    static std::string configDirectory();
    /// `fileName` in the configuration directory.
    static std::string configFile(const std::string& fileName);

    static KesNumberingConfig* instance;
    static Logger* logger;

    static int MAX_PHONE_NUMBER_LENGTH;
    static int MAX_COUNTRY_NUMBER_LENGTH;

    static std::string DIALING_RULES_FILE;
    static std::string DIALING_RULES_DEFAULT_FILE;
    static std::string COUNTRY_MASKS_FILE;
    static std::string COUNTRY_MASKS_DEFAULT_FILE;
    static std::string SPECIFIC_FORMAT_FILE;
    static std::string SPECIFIC_FORMAT_DEFAULT_FILE;

private:
    KesNumberingConfig();
    KesNumberingConfig(const KesNumberingConfig&) = delete;
    KesNumberingConfig& operator=(const KesNumberingConfig&) = delete;

    /// Rebuilds the index from the maps; every load ends with it, whatever it loaded.
    void reindex();

    Poco::HashMap<std::string, std::string> countryCodeByNumber; // primary rows only
    Poco::HashMap<std::string, std::string> countryCodeByName;
    Poco::HashMap<std::string, Poco::AutoPtr<KesCountryRuleItem>> countryRules;
    Poco::HashMap<std::string, std::string> countryMasks;
    std::vector<std::string> countryList;
    Poco::HashMap<int, bool> specificFormatActivation;

    struct Index;
    std::unique_ptr<Index> index;
};

} // namespace numbering

#endif
