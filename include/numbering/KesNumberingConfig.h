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

class Generation;
class KesDialRulesItem;
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
    /// Destroys the current store alone: the plan and strategy caches, and the pointers a host holds
    /// to them, stay. The next getInstance() reads the store's files again, from disk. Only when no
    /// conversion runs (see KesNumberingRules::reload).
    static void resetInstance();

    virtual ~KesNumberingConfig();

    /// Whether the country's own layout applies to the calling code `countryNumber`: true unless a
    /// switch says otherwise, and for an empty code. Every switch of the file is filed under 0 (the
    /// first one read stays), so only a calling code that reads as 0 ever meets one.
    virtual bool isSpecificFormatActiveForCountry(std::string countryNumber);
    /// The display mask of the calling code `countryNumber` ("+C (A) x xx xx xx xx" for "33"), or "".
    virtual std::string getDefaultPattern(std::string countryNumber);
    /// The country names of the dialing rules, sorted. Owned by the store.
    virtual std::vector<std::string>& getCountryList();
    /// The two-letter code of the country named exactly `name`, or "" (also for an empty name).
    virtual std::string getCountryCodeFromName(std::string name);
    /// The two-letter code of the primary calling code `number` ("33" gives "FR"), or "".
    virtual std::string getCountryCodeFromNumber(std::string number);
    /// The name of the two-letter code `code`, or "".
    virtual std::string getCountryName(std::string code);
    /// The calling code of the two-letter code `code` ("FR" gives "33"), or "".
    virtual std::string getCountryNumber(std::string code);
    /// Whether the dialing rules hold a row for the two-letter code `code` (case matters).
    virtual bool validCountryCode(std::string code);
    /// The record of `code`, or null. The store keeps ownership: do not release it.
    virtual KesCountryRuleItem* getCountryRule(std::string code);
    /// The shortest primary calling code (1 to 4 characters) at the head of `number`, or "".
    virtual std::string extractCountryNumber(std::string number);

    // The same look-ups for the conversions, answered from a flat index without copying the key
    // or the answer: null (or 0) where the operations above answer "" or null.

    /// The country of a primary calling code.
    struct Country {
        std::string code;         ///< the two-letter code of the row
        KesCountryRuleItem* rule; ///< the row
        /// The rules the country's national numbers are read with when another country dials them:
        /// KesDialRulesItem(code, "", 0, "", 0, ""), made once; null for a code that is not two
        /// characters long, which the dialing rules refuse.
        std::unique_ptr<KesDialRulesItem> nationalRules;
    };

    /// As getCountryRule.
    KesCountryRuleItem* findCountryRule(std::string_view code) const;
    /// The country of the primary calling code `number`, or null.
    const Country* findCountry(std::string_view number) const;
    /// As getCountryCodeFromNumber.
    const std::string* findCountryCode(std::string_view number) const;
    /// getCountryRule(getCountryCodeFromNumber(number)).
    KesCountryRuleItem* findCountryRuleOfNumber(std::string_view number) const;
    /// The length of extractCountryNumber(number).
    std::size_t countryNumberLength(std::string_view number) const;
    /// As getDefaultPattern.
    const std::string* findDefaultPattern(std::string_view countryNumber) const;

    // The reading steps of the constructor, in this order. Each logs an error and answers false
    // when reading stops at a failure, and keeps what it read before it.

    /// Reads "dialingrules.properties", else its default: one row per two-letter code.
    bool loadDialingRules();
    /// Fills the country list from the names read by loadDialingRules().
    void createListCountryDisplay();
    /// Reads the display masks ("Mask_<calling code>_..." keys) of "dlr_cnp_mask.properties", else
    /// its default.
    bool loadCountryMasks();
    /// Reads the "cnp_<calling code>" switches of "specific_format_activation.properties", else its
    /// default.
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
    /// The store's log lines: reading errors and traces.
    static Logger* logger;

    /// A canonical number of this many characters (30) or more is never made dialable.
    static int MAX_PHONE_NUMBER_LENGTH;
    /// The longest calling code, 3 digits.
    static int MAX_COUNTRY_NUMBER_LENGTH;

    /// The file names in the directory of the library's start; a store reads the same names in
    /// its own directory.
    static std::string DIALING_RULES_FILE;
    static std::string DIALING_RULES_DEFAULT_FILE;   ///< read when DIALING_RULES_FILE cannot be opened
    static std::string COUNTRY_MASKS_FILE;           ///< the display masks
    static std::string COUNTRY_MASKS_DEFAULT_FILE;   ///< read when COUNTRY_MASKS_FILE cannot be opened
    static std::string SPECIFIC_FORMAT_FILE;         ///< the specific-format switches
    static std::string SPECIFIC_FORMAT_DEFAULT_FILE; ///< read when SPECIFIC_FORMAT_FILE cannot be opened

private:
    friend KesNumberingConfig& loadStoreOf(Generation& generation);
    explicit KesNumberingConfig(Generation& generation);
    KesNumberingConfig(const KesNumberingConfig&) = delete;
    KesNumberingConfig& operator=(const KesNumberingConfig&) = delete;

    Generation& generation;                                   // where this store's files are read
    std::unique_ptr<TextKeyMap<Country>> countryCodeByNumber; // primary rows only
    std::unique_ptr<TextKeyMap<std::string>> countryCodeByName;
    std::unique_ptr<TextKeyMap<Poco::AutoPtr<KesCountryRuleItem>>> countryRules;
    std::unique_ptr<TextKeyMap<std::string>> countryMasks;
    std::vector<std::string> countryList;
    Poco::HashMap<int, bool> specificFormatActivation;
};

} // namespace numbering

#endif
