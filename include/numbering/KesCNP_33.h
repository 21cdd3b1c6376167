#ifndef NUMBERING_KESCNP_33_H
#define NUMBERING_KESCNP_33_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 33: closed numbering of ten digits with the national prefix.
/// The canonical form keeps the national prefix digit in parentheses: 0123456789 is +33 (0) 123456789.
/// Reads no file; the national prefix is the long-distance prefix of the dialing rules.
class NUMBERING_API KesCNP_33 : public KesCNP {
public:
    KesCNP_33();
    ~KesCNP_33() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
