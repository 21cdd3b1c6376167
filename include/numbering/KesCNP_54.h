#ifndef NUMBERING_KESCNP_54_H
#define NUMBERING_KESCNP_54_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 54. Argentine numbers carry two mobile markers: "15" between
/// the area code and the subscriber number when dialled nationally, "9" between the country code
/// and the area code in international form ("+54 9 (11) 43215678"). StripNbr splits a number into
/// area code, subscriber number and mobile flag; the Argentine dialing strategy uses the same split.
class NUMBERING_API KesCNP_54 : public KesAreaCodePlan {
public:
    /// The split of a number. StripNbr makes it on the heap; the caller deletes it.
    struct StrippedNumber {
        std::string area;    ///< the area code
        std::string number;  ///< without any prefix or mobile marker
        bool mobile = false; ///< the number carried a mobile marker
    };

    KesCNP_54();
    ~KesCNP_54() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The split of `number` as dialled at the installation `rules`, or null when it cannot be
    /// split (longer than 15 characters, a "9" not followed by a known area code, no `rules`).
    StrippedNumber* StripNbr(std::string number, KesDialRulesItem* rules);

    static std::string PREFIX_MOBILE_NATIONAL;      ///< "15", between area code and subscriber number
    static std::string PREFIX_MOBILE_INTERNATIONAL; ///< "9", between calling code and area code
    /// The plan's traces.
    static Logger* logger;
    /// The plan files (KesCNPRegistry names them) in the directory of the library's start, for hosts
    /// that show them; nothing in the library reads these: the plan reads the configuration in use.
    static std::string AREA_CODES_FILE;
    static std::string AREA_CODES_DEFAULT_FILE; ///< read when the installation file cannot be opened

private:
    bool strip(const std::string& number, KesDialRulesItem* rules, StrippedNumber& split);
};

} // namespace numbering

#endif
