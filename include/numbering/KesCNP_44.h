#ifndef NUMBERING_KESCNP_44_H
#define NUMBERING_KESCNP_44_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 44: national numbers split at a known area code, else written
/// with the national prefix "(0)"; local numbers (first digit 2 to 9) completed with the own area code.
class NUMBERING_API KesCNP_44 : public KesAreaCodePlan {
public:
    KesCNP_44();
    ~KesCNP_44() override;

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
