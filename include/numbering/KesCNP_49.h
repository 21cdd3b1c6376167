#ifndef NUMBERING_KESCNP_49_H
#define NUMBERING_KESCNP_49_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 49: "+49 (area code) subscriber", the area codes from the plan
/// file. A national number whose area code is unknown is put behind the installation's own area code.
class NUMBERING_API KesCNP_49 : public KesAreaCodePlan {
public:
    KesCNP_49();
    ~KesCNP_49() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// Self-test: converts a fixed list of numbers for a fixed installation and prints them.
    static void main(std::string* args);

    /// The plan's traces.
    static Logger* logger;
    /// The plan files (KesCNPRegistry names them) in the directory of the library's start, for hosts
    /// that show them; nothing in the library reads these: the plan reads the configuration in use.
    static std::string AREA_CODES_FILE;
    static std::string AREA_CODES_DEFAULT_FILE; ///< read when the installation file cannot be opened
};

} // namespace numbering

#endif
