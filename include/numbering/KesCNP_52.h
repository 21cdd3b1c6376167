#ifndef NUMBERING_KESCNP_52_H
#define NUMBERING_KESCNP_52_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>
#include <string_view>

class Logger;

namespace numbering {

/// The numbering plan of calling code 52. Mexican national significant numbers have ten digits:
/// a two-digit area code (55 and 56 for Mexico City, 33, 81) and eight digits, or a three-digit
/// area code and seven. Fixed numbers become "+52 (area) number"; mobiles carry the mobile marker
/// "1" in the parentheses, "+52 (1area) number", which the Mexican dialing strategy turns back into
/// 044 (own area) or 045 (another area). Numbers of any other shape come back unchanged.
class NUMBERING_API KesCNP_52 : public KesAreaCodePlan {
public:
    KesCNP_52();
    ~KesCNP_52() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;
    /// True when `number` (an area code or a national significant number) begins with one of the
    /// two-digit area codes 55, 56, 33 or 81.
    virtual bool isTwoDigitsAreaCode(std::string number);

    /// The plan's traces.
    static Logger* logger;
    /// The plan files (KesCNPRegistry names them) in the directory of the library's start, for hosts
    /// that show them; nothing in the library reads these: the plan reads the configuration in use.
    static std::string AREA_CODES_FILE;
    static std::string AREA_CODES_DEFAULT_FILE; ///< read when the installation file cannot be opened

private:
    bool place(std::string_view number, KesDialRulesItem* rules, std::string& result);
    std::string placeNationalNumber(std::string_view marker, std::string_view national);
};

} // namespace numbering

#endif
