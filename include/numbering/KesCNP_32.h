#ifndef NUMBERING_KESCNP_32_H
#define NUMBERING_KESCNP_32_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 32: national numbers of nine digits or more split at a known
/// area code, else written with the national prefix "(0)"; other numbers are left as they are.
class NUMBERING_API KesCNP_32 : public KesAreaCodePlan {
public:
    KesCNP_32();
    ~KesCNP_32() override;

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
