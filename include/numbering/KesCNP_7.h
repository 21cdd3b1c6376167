#ifndef NUMBERING_KESCNP_7_H
#define NUMBERING_KESCNP_7_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 7: closed numbering of eleven digits with the national prefix.
/// The canonical form drops the prefix and puts the three-digit area code in parentheses:
/// 84951234567 is +7 (495) 1234567.
/// Reads no file; the national prefix is the long-distance prefix of the dialing rules.
class NUMBERING_API KesCNP_7 : public KesCNP {
public:
    KesCNP_7();
    ~KesCNP_7() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
