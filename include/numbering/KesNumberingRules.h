#ifndef NUMBERING_KESNUMBERINGRULES_H
#define NUMBERING_KESNUMBERINGRULES_H

#include "numbering/Export.h"

#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

class KesClid;
class KesDialRulesItem;
class KesNumberingConfig;

/// What a reload does with files in which the configuration check finds an error.
enum class ReloadPolicy {
    /// Activates them as they are, as reload() always has.
    Plain,
    /// Keeps the running configuration and throws KesConfigurationRejected. Warnings and notes never
    /// refuse a directory.
    RefuseErrors
};

/// The library's front door. Converts what a user typed, or what a trunk delivered, into the
/// canonical international form ("+33 (1) 23456789"), lays canonical numbers out with the
/// country masks, splits them, builds caller line identities and GSM forms, and turns canonical
/// numbers back into the digits the installation dials (with the outside-line prefix where needed).
///
/// A process-wide singleton without instance data. Any thread may convert at any time, the first
/// conversion for a country included; reload() re-reads the configuration while conversions go on.
/// Each conversion runs on one configuration from its start to its end. The conversions are
/// virtual and call each other through the virtual table, so a host subclass can override them.
///
/// @code
/// numbering::KesNumberingRules::reload("/etc/numbering/"); // before the first getInstance()
/// numbering::KesNumberingRules* rules = numbering::KesNumberingRules::getInstance();
/// numbering::KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
/// std::string canonical = rules->makeCanonicalNumber(&paris, "0123456789", ""); // "+33 (0) 1 23 45 67 89"
/// std::string dialled = rules->makePhoneNumber(&paris, canonical);             // "00123456789"
/// @endcode
class NUMBERING_API KesNumberingRules {
public:
    /// The facade, made on first call (once, whichever threads call at the same time), with the
    /// configuration store when none is loaded. The facade itself lives until resetInstance().
    /// Never throws for a missing configuration: the store is then empty, and the first
    /// KesDialRulesItem made for a country throws KesUnsupportedCountryException.
    ///
    /// @code
    /// numbering::KesNumberingRules* rules = numbering::KesNumberingRules::getInstance();
    /// std::vector<std::string> names = rules->getCountryList(); // sorted: ..., "France", "Germany", ...
    /// @endcode
    static KesNumberingRules* getInstance();
    /// Tears down the plan cache, the strategy cache, the configuration store and the facade, in
    /// this order: the next getInstance() re-reads every file. Only when no conversion runs.
    static void resetInstance();
    /// Re-reads every file, as resetInstance() followed by getInstance() would, while other threads
    /// convert: a conversion that started before finishes on the old configuration, one that starts
    /// after sees the new one, and none mixes the two. Every file the new configuration reads (the
    /// store's, each plan's, the Colombian operators') is read as it is at the reload, although plans
    /// and strategies are still built, and log, on first use; two reloads at once are serialised, and
    /// the last one wins. Returns once the old configuration (store,
    /// plans, strategies, trees) is freed, which waits for the conversions that still use it; the
    /// look-up pointers obtained before (getCountryRule, getCNP, getDialable, getCountryList, the
    /// store and caches themselves) are invalid from then on. Reloads may run on several threads;
    /// calling it from inside a conversion (a log sink, say) throws std::logic_error.
    ///
    /// @code
    /// // after the installer has changed a file of the configuration directory:
    /// numbering::KesNumberingRules::reload();
    /// @endcode
    static void reload();
    /// reload() from `configDirectory`, which replaces the configuration directory from then on
    /// (an empty one goes back to the directory of the library's start). Called before the first
    /// getInstance(), it chooses where the first load reads.
    static void reload(const std::string& configDirectory);
    /// reload(configDirectory) under `policy`. With ReloadPolicy::RefuseErrors, the files are read
    /// once, checked as KesConfigurationCheck::check() checks a directory, and those same bytes are
    /// activated only when the check finds no error: an edit made in between cannot slip past it.
    /// Otherwise it throws KesConfigurationRejected and changes nothing, neither the configuration
    /// nor the configuration directory. The call a host makes when the installer changed the files.
    ///
    /// @code
    /// try {
    ///     numbering::KesNumberingRules::reload("/etc/numbering/", numbering::ReloadPolicy::RefuseErrors);
    /// } catch (const numbering::KesConfigurationRejected& refused) {
    ///     report(refused.what()); // the calls go on with the configuration of before
    /// }
    /// @endcode
    static void reload(const std::string& configDirectory, ReloadPolicy policy);
    /// reload(directory, policy) from the configuration directory in use.
    static void reload(ReloadPolicy policy);

    /// A facade of its own, for a host subclass; it shares the process-wide configuration.
    KesNumberingRules();

    /// The country names of the dialing rules, sorted; empty when no rules were read.
    virtual std::vector<std::string> getCountryList();
    /// The two-letter code of the country named exactly `countryName` ("France" gives "FR"), or "".
    virtual std::string getCountryCode(std::string countryName);
    /// The name of the two-letter code `countryCode` (upper case, "FR"), or "".
    virtual std::string getCountryName(std::string countryCode);
    /// The two-letter code of the calling code `countryNumber` ("33" gives "FR"), or "".
    virtual std::string getCountryCodeFromNumber(std::string countryNumber);
    /// The canonical number in GSM form, "+" and digits only ("+390612345678"); a canonical form
    /// without parentheses keeps its blank ("0612345678" at an Italian installation gives
    /// "+39 0612345678"); local numbers and service codes come back as the canonical conversion
    /// left them, a failed conversion as "". `withExternalPrefix` and the exceptions as for
    /// makeCanonicalNumber.
    virtual std::string makeGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                               std::string strPhoneNumber, bool withExternalPrefix);
    /// makeCanonicalNumber(myKesDialRulesItem, strPhoneNumber, strPattern, false): the number as
    /// typed or received, without the installation's outside-line prefix.
    ///
    /// @code
    /// numbering::KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
    /// rules->makeCanonicalNumber(&paris, "01 23 45 67 89", ""); // "+33 (0) 1 23 45 67 89"
    /// @endcode
    virtual std::string makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber,
                                            std::string strPattern);
    /// The canonical number, laid out with `strPattern` (or the country's mask) when it is
    /// international; the cleaned number when no canonical form can be derived or it is a service
    /// code; "" on failure. With `withExternalPrefix`, the number begins with the installation's
    /// outside-line prefix, which is dropped first ("" when the installation has none). Only
    /// std::invalid_argument for a null item or an empty number escapes.
    virtual std::string makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber,
                                            std::string strPattern, bool withExternalPrefix);
    /// For callers that convert numbers in bulk: makeCanonicalNumber(myKesDialRulesItem,
    /// strPhoneNumber, strPattern, withExternalPrefix) appended to `out` (nothing when it gives "").
    /// Once `out` and the thread's buffers have grown to the numbers' size, a conversion allocates
    /// nothing. Same exceptions.
    ///
    /// @code
    /// std::string line;
    /// for (const std::string& number : numbers) {
    ///     line.clear();
    ///     rules->appendCanonicalNumber(&paris, number, "", false, line);
    ///     write(line);
    /// }
    /// @endcode
    void appendCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string_view strPhoneNumber,
                               const std::string& strPattern, bool withExternalPrefix, std::string& out);
    /// makeGSMCanonicalNumber(myKesDialRulesItem, strPhoneNumber, withExternalPrefix) appended to
    /// `out`, as appendCanonicalNumber.
    void appendGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string_view strPhoneNumber,
                                  bool withExternalPrefix, std::string& out);
    /// The digits to send on an outside line for any acceptable number, outside-line prefix included;
    /// "" when the number cannot be converted. std::invalid_argument for a null item or an empty number.
    ///
    /// @code
    /// numbering::KesDialRulesItem paris("FR", "0", 0, "1", 0, "");
    /// rules->makePhoneNumber(&paris, "+49 (89) 123456"); // "0004989123456"
    /// @endcode
    virtual std::string makePhoneNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);
    /// Like makePhoneNumber for canonical input; any other number is only checked and prefixed.
    /// std::invalid_argument for a null item or an empty number.
    virtual std::string addExternalPrefix(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);
    /// A new caller identity owned by the caller, or null when the number cannot be converted:
    /// INTERNATIONAL with calling code, area code (unless it is the installation's national prefix)
    /// and subscriber digits for another country; NATIONAL with the area code (none behind the
    /// national prefix); PUBLIC_1 with the subscriber digits inside the installation's own area;
    /// PRIVATE_1 for a number left as it was (an internal number, a service code).
    /// std::invalid_argument for a null item or an empty number.
    ///
    /// @code
    /// Poco::AutoPtr<numbering::KesClid> clid(rules->makeClid(&paris, "+49 (89) 123456"));
    /// if (!clid.isNull() && clid->getOrigin() == &numbering::KesEnumOrigin::INTERNATIONAL)
    ///     present(clid->getNumber()); // "4989123456"
    /// @endcode
    virtual KesClid* makeClid(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);

    /// The canonical number of a national number for a country without a plan of its own.
    std::string generateDefaultCanonicalNumber(std::string strPhoneNumber, std::string strCountryCode,
                                               std::string strAreaCode);
    /// Lays a canonical number out with a mask: "C" country number, "A" area code, "a" area code
    /// unless it is the national prefix, "x" one subscriber digit; anything else is copied, and the
    /// digits the mask does not place follow it. An empty `strPattern` takes the country's mask; a
    /// number without parentheses comes back unchanged, and a country without a mask gets the
    /// empty mask, which leaves only the subscriber digits.
    std::string formatCanonicalNumber(std::string strCanPhoneNumber, std::string strPattern);

    /// The calling code: the digits behind the leading "+" ("+33 (1) 23456789" gives "33"), or ""
    /// when the number does not begin with "+".
    std::string extractCountryNumberFromCanonicalNumber(std::string strCanPhoneNumber);
    /// What stands between the first "(" and the first ")": the area code, or the national prefix
    /// ("0" in "+33 (0) 1 23 45 67 89"); "" when there is none.
    std::string extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string strCanPhoneNumber);
    /// The subscriber digits: every digit behind the first ")", else behind the first blank; "" when
    /// the number holds neither.
    std::string extractExtensionFromCanonicalNumber(std::string strCanPhoneNumber);

    /// "+", the country number, the area code (a national prefix in parentheses dropped), the rest.
    std::string formatToGSMCanonicalNumber(std::string strCanPhoneNumber);

    /// The digits that reach a canonical number from the installation, without the outside-line
    /// prefix. `myKesDialRulesItem` must not be null.
    std::string makeDialableNumber(KesDialRulesItem* myKesDialRulesItem, std::string strCanPhoneNumber);
    /// Whether the outside-line prefix goes in front of `strPhoneNumber`.
    bool isPrefixNeeded(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);

    /// The facade made by getInstance(), null before it and after resetInstance().
    static KesNumberingRules* instance;
    /// The current store, for inspection only: it changes with every reload, so read the store
    /// through KesNumberingConfig::getInstance().
    static KesNumberingConfig* config;
    /// The facade's log lines, traces and errors.
    static Logger* logger;

    /// Service characters: kept in a number, which then is a service code and is not converted.
    static std::string TELEPHONENUMBER_SPECIAL_CHARACTER;
    /// Presentation characters, dropped by every conversion.
    static std::string TELEPHONENUMBER_FORMAT_CHARACTER;

private:
    /// The digits and service characters of the number, or "" when it holds another character.
    std::string checkPhoneNumber(std::string_view strPhoneNumber);
};

} // namespace numbering

#endif
