#ifndef NUMBERING_KESEXPLANATION_H
#define NUMBERING_KESEXPLANATION_H

#include "numbering/Export.h"

#include <string>
#include <vector>

namespace numbering {

class KesDialRulesItem;

/// What the conversions of one number decided, and why: the results of makeCanonicalNumber,
/// makeGSMCanonicalNumber, makePhoneNumber, makeDialableNumber and makeClid, with the decisions
/// taken on the way. Made by of(); the conversions record nothing unless of() asks them to.
class NUMBERING_API KesExplanation {
public:
    /// What the number was recognised as.
    enum class Kind {
        Unread,            ///< not read: the conversion stopped before (an empty number, "***")
        ServiceCode,       ///< holds a service character ("*#ABCD"): never made canonical
        NotAPhoneNumber,   ///< holds a character that is not part of a phone number
        Extension,         ///< shorter than the local number length, or an exception number
        Local,             ///< no prefix: local or national, the rules cannot tell
        National,          ///< begins with the national (long-distance) prefix
        NationalAsLocal,   ///< the country writes local and national numbers alike
        International,     ///< begins with the international prefix
        InternationalForm, ///< written in international form, "+" and the calling code
        UnknownCountry     ///< international, but no country has its calling code
    };
    /// Whether a country plan wrote the canonical form, and why not.
    enum class Plan {
        NotReached,       ///< no country to ask for a plan
        CountryPlan,      ///< the plan of planCallingCode wrote the canonical form
        NoPlanForCountry, ///< the country has no plan: the generic rules wrote it
        SwitchedOff,      ///< the plan is switched off by the specific-format switches
        LeftAlone         ///< a local or exception number without the outside-line prefix: untouched
    };
    /// How the area code of the canonical number was found.
    enum class AreaCode {
        NotSought,   ///< no area code was looked for (no plan with area codes, or nothing to place)
        Found,       ///< the number begins with a known area code
        Unknown,     ///< the number begins with no known area code
        OwnAreaCode, ///< a number without national prefix, completed with the own area code
        AsWritten,   ///< the area code the number was written with (generic rules)
        PlanRule     ///< placed by the plan's own rule, without a list (France: the first digit)
    };
    /// Which mask laid the canonical number out.
    enum class Mask {
        None,    ///< no layout: no canonical number, or one without parentheses
        Given,   ///< the pattern the caller gave
        Country, ///< the mask of the calling code
        Missing  ///< the calling code has no mask: only the subscriber number is kept
    };
    /// Which way makeDialableNumber dials the canonical number.
    enum class Route {
        None,          ///< not dialled (no canonical number, or not in canonical form)
        International, ///< another country: the international rule
        Local,         ///< the own country and one of the own area codes: the local rule
        LongDistance   ///< the own country, another area: the long-distance rule
    };
    /// Whether makePhoneNumber put the outside-line prefix in front, and why.
    enum class OutsideLine {
        NotDialled,        ///< no dialable number
        NoPrefix,          ///< the installation has no outside-line prefix
        ServiceCode,       ///< a service code is never prefixed
        Needed,            ///< added: the number is neither short nor an exception
        InternalExtension, ///< not added: shorter than the local number length
        ExceptionNumber,   ///< not added: an exception number of the installation
        DialledWithPrefix, ///< short or an exception, but typed with the prefix: kept
        Canonical          ///< short or an exception, but typed in canonical form: prefix kept
    };
    /// A section of docs/behaviour.md that applies to this number.
    enum class Note {
        ArgentineMobile,  ///< "An Argentine mobile number is dialled as a local one"
        ColombianCarrier, ///< "A Colombian installation dials the subscriber number twice"
        ItalianGsmBlank,  ///< "The GSM form of an Italian number has a blank"
        MissingMask,      ///< "A masks file without a country's mask loses that country's numbers"
        ShortNumberInArea ///< "\"112\" in a German installation becomes a Munich number"
    };

    /// Runs the conversions of `number` for `installation` and records their decisions. Throws
    /// std::invalid_argument for a null installation or an empty number, as the conversions do.
    static KesExplanation of(KesDialRulesItem* installation, const std::string& number);
    /// The title of the section of docs/behaviour.md that `note` points to.
    static const char* section(Note note);
    /// The name of `value` as written in its enumeration ("InternationalForm").
    static const char* name(Kind value);
    /// The name of `value` as written in its enumeration.
    static const char* name(Plan value);
    /// The name of `value` as written in its enumeration.
    static const char* name(AreaCode value);
    /// The name of `value` as written in its enumeration.
    static const char* name(Mask value);
    /// The name of `value` as written in its enumeration.
    static const char* name(Route value);
    /// The name of `value` as written in its enumeration.
    static const char* name(OutsideLine value);
    /// The name of `value` as written in its enumeration.
    static const char* name(Note value);

    // The results.
    std::string number;      ///< the number as given
    std::string canonical;   ///< makeCanonicalNumber, with the country's mask ("" on failure)
    std::string gsm;         ///< makeGSMCanonicalNumber
    std::string dialable;    ///< makeDialableNumber of the canonical number, without outside-line prefix
    std::string phoneNumber; ///< makePhoneNumber: what the installation dials
    std::string clid;        ///< the number makeClid presents ("" when it makes none)
    std::string clidOrigin;  ///< the origin of makeClid's identity (KesEnumOrigin name), "" for none

    // The installation's row of the dialing rules.
    std::string countryCode;         ///< the installation's country ("FR")
    std::string callingCode;         ///< its calling code ("33"); "" when the country has no row
    std::string internationalPrefix; ///< its international prefix ("00")
    std::string longDistancePrefix;  ///< its national (long-distance) prefix ("0")
    std::string internationalRule;   ///< its international rule letters ("EF")
    std::string longDistanceRule;    ///< its long-distance rule letters
    std::string localRule;           ///< its local rule letters

    // The decisions.
    Kind kind = Kind::Unread;                     ///< what the number was recognised as
    bool outsideLinePrefixTyped = false;          ///< the number was typed behind the outside-line prefix
    std::string operatorPrefix;                   ///< an operator prefix after the international prefix
    std::string destinationCountry;               ///< the country the number belongs to ("DE"), "" unknown
    Plan plan = Plan::NotReached;                 ///< the plan used, or why none
    std::string planCallingCode;                  ///< the calling code of the plan asked for
    AreaCode areaCodeFound = AreaCode::NotSought; ///< how the area code was found
    std::string areaCode;      ///< the area code or national prefix in the canonical number
    Mask mask = Mask::None;    ///< which mask laid the canonical number out
    std::string maskText;      ///< the mask's text ("+C (a) xx xx xx xx")
    Route route = Route::None; ///< how the canonical number is dialled
    OutsideLine outsideLine = OutsideLine::NotDialled; ///< the outside-line prefix decision
    bool outsideLinePrefixAdded = false;               ///< the result carries the outside-line prefix
    std::vector<Note> notes;                           ///< the sections of docs/behaviour.md that apply
};

} // namespace numbering

#endif
