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

/// The library's front door. Converts what a user typed, or what a trunk delivered, into the
/// canonical international form ("+33 (1) 23456789"), lays canonical numbers out with the
/// country masks, splits them, builds caller line identities and GSM forms, and turns canonical
/// numbers back into the digits the installation dials (with the outside-line prefix where needed).
///
/// A process-wide singleton without instance data. Any thread may convert at any time, the first
/// conversion for a country included; reload() re-reads the configuration while conversions go on.
/// Each conversion runs on one configuration from its start to its end. The conversions are
/// virtual and call each other through the virtual table, so a host subclass can override them.
class NUMBERING_API KesNumberingRules {
public:
    /// The facade, made on first call (once, whichever threads call at the same time), with the
    /// configuration store when none is loaded. The facade itself lives until resetInstance().
    static KesNumberingRules* getInstance();
    /// Tears down the plan cache, the strategy cache, the configuration store and the facade, in
    /// this order: the next getInstance() re-reads every file. Only when no conversion runs.
    static void resetInstance();
    /// Re-reads every file, as resetInstance() followed by getInstance() would, while other threads
    /// convert: a conversion that started before finishes on the old configuration, one that starts
    /// after sees the new one, and none mixes the two. Returns once the old configuration (store,
    /// plans, strategies, trees) is freed, which waits for the conversions that still use it; the
    /// look-up pointers obtained before (getCountryRule, getCNP, getDialable, getCountryList, the
    /// store and caches themselves) are invalid from then on. Reloads may run on several threads;
    /// calling it from inside a conversion (a log sink, say) throws std::logic_error.
    static void reload();
    /// reload() from `configDirectory`, which replaces the configuration directory from then on
    /// (an empty one goes back to the directory of the library's start). Called before the first
    /// getInstance(), it chooses where the first load reads.
    static void reload(const std::string& configDirectory);

    KesNumberingRules();

    virtual std::vector<std::string> getCountryList();
    virtual std::string getCountryCode(std::string countryName);
    virtual std::string getCountryName(std::string countryCode);
    virtual std::string getCountryCodeFromNumber(std::string countryNumber);
    /// "+" and digits only; local numbers and service codes come back as the canonical conversion
    /// left them, a failed conversion as "".
    virtual std::string makeGSMCanonicalNumber(KesDialRulesItem* myKesDialRulesItem,
                                               std::string strPhoneNumber, bool withExternalPrefix);
    virtual std::string makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber,
                                            std::string strPattern);
    /// The canonical number, laid out with `strPattern` (or the country's mask) when it is
    /// international; the cleaned number when no canonical form can be derived or it is a service
    /// code; "" on failure. Only std::invalid_argument for a null item or an empty number escapes.
    virtual std::string makeCanonicalNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber,
                                            std::string strPattern, bool withExternalPrefix);
    /// The digits to send on an outside line for any acceptable number, outside-line prefix included.
    virtual std::string makePhoneNumber(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);
    /// Like makePhoneNumber for canonical input; any other number is only checked and prefixed.
    virtual std::string addExternalPrefix(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);
    /// A new caller identity owned by the caller, or null when the number cannot be converted.
    virtual KesClid* makeClid(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);

    /// The canonical number of a national number for a country without a plan of its own.
    std::string generateDefaultCanonicalNumber(std::string strPhoneNumber, std::string strCountryCode,
                                               std::string strAreaCode);
    /// Lays a canonical number out with a mask: "C" country number, "A" area code, "a" area code
    /// unless it is the national prefix, "x" one subscriber digit; anything else is copied, and the
    /// digits the mask does not place follow it. An empty `strPattern` takes the country's mask; a
    /// country without one, or a number without parentheses, keeps its layout.
    std::string formatCanonicalNumber(std::string strCanPhoneNumber, std::string strPattern);

    std::string extractCountryNumberFromCanonicalNumber(std::string strCanPhoneNumber);
    std::string extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string strCanPhoneNumber);
    /// The subscriber digits.
    std::string extractExtensionFromCanonicalNumber(std::string strCanPhoneNumber);

    /// "+", the country number, the area code (a national prefix in parentheses dropped), the rest.
    std::string formatToGSMCanonicalNumber(std::string strCanPhoneNumber);

    /// The digits that reach a canonical number from the installation, without the outside-line
    /// prefix. `myKesDialRulesItem` must not be null.
    std::string makeDialableNumber(KesDialRulesItem* myKesDialRulesItem, std::string strCanPhoneNumber);
    /// Whether the outside-line prefix goes in front of `strPhoneNumber`.
    bool isPrefixNeeded(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber);

    static KesNumberingRules* instance;
    /// The current store, for inspection only: it changes with every reload, so read the store
    /// through KesNumberingConfig::getInstance().
    static KesNumberingConfig* config;
    static Logger* logger;

    /// Service characters: kept in a number, which then is a service code and is not converted.
    static std::string TELEPHONENUMBER_SPECIAL_CHARACTER;
    /// Presentation characters, dropped by every conversion.
    static std::string TELEPHONENUMBER_FORMAT_CHARACTER;

private:
    /// The trimmed number; a number in international form is rewritten into `layout` as
    /// "+<country> (<area>) <rest>" and the view shows `layout`.
    std::string_view validNumber(const std::string& strPhoneNumber, std::string& layout);
    /// The digits and service characters of the number, or "" when it holds another character.
    std::string checkPhoneNumber(std::string_view strPhoneNumber);
};

} // namespace numbering

#endif
