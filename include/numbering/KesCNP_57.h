#ifndef NUMBERING_KESCNP_57_H
#define NUMBERING_KESCNP_57_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

#include <string>

class Logger;

namespace numbering {

/// The numbering plan of calling code 57. Reads no file: seven-digit local numbers take the
/// installation's area code; national numbers of ten or more characters begin with the national
/// prefix 0 and a carrier selection, and the area code (or, after "03", the three-digit mobile
/// prefix) stands at a fixed position.
class NUMBERING_API KesCNP_57 : public KesCNP {
public:
    KesCNP_57();
    ~KesCNP_57() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
    /// The Colombian plan files. The plan does not open them: the operator prefixes they hold are
    /// read by the Colombian dialing strategy.
    static std::string CNP_FILE;
    static std::string CNP_DEFAULT_FILE; ///< read by nothing: the strategy has no default file
};

} // namespace numbering

#endif
