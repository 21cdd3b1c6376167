#ifndef NUMBERING_KESCNP_64_H
#define NUMBERING_KESCNP_64_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 64. Reads no file: national numbers (national prefix "0"
/// included) are recognised by their leading digits and length, seven-digit local numbers are
/// completed with the installation's one-digit area code. The code after the national prefix
/// goes in the parentheses: 091234567 is +64 (9) 1234567, 0211234567 is +64 (21) 1234567,
/// 0800123456 is +64 (800) 123456. Anything else comes back unchanged.
class NUMBERING_API KesCNP_64 : public KesCNP {
public:
    KesCNP_64();
    ~KesCNP_64() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
