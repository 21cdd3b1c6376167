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
    /// "tz310cnp_49.properties" and "tz310cnp_49_default.properties" in the directory of the library's start;
    /// the plan reads these names in the directory of the configuration in use.
    static std::string AREA_CODES_FILE;
    static std::string AREA_CODES_DEFAULT_FILE; ///< read when the installation file cannot be opened
};

} // namespace numbering

#endif
