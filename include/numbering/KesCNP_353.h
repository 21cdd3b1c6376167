#ifndef NUMBERING_KESCNP_353_H
#define NUMBERING_KESCNP_353_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 353: national numbers split at a known area code, else at their
/// first two digits; numbers without national prefix completed with the own area code.
class NUMBERING_API KesCNP_353 : public KesAreaCodePlan {
public:
    KesCNP_353();
    ~KesCNP_353() override;

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
