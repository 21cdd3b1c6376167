#ifndef NUMBERING_KESCNP_43_H
#define NUMBERING_KESCNP_43_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodePlan.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 43: "+43 (area code) subscriber", the area codes from the plan
/// file. A national number whose area code is unknown is taken to begin with a four-digit one.
class NUMBERING_API KesCNP_43 : public KesAreaCodePlan {
public:
    KesCNP_43();
    ~KesCNP_43() override;

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
