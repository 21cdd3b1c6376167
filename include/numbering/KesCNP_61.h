#ifndef NUMBERING_KESCNP_61_H
#define NUMBERING_KESCNP_61_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 61, decided by exact length: ten-digit national numbers
/// split at a known area code, the 1300, 1800 and 13 services written with their prefix outside
/// the parentheses ("+61 1300 123456"), eight-digit local numbers completed with the own area code.
class NUMBERING_API KesCNP_61 : public KesAreaCodePlan {
public:
    KesCNP_61();
    ~KesCNP_61() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
    /// The plan files (KesCNPRegistry names them) in the directory of the library's start, for hosts
    /// that show them; nothing in the library reads these: the plan reads the configuration in use.
    static std::string AREA_CODES_FILE;
    static std::string AREA_CODES_DEFAULT_FILE; ///< read when the installation file cannot be opened
};

} // namespace numbering

#endif
