#ifndef NUMBERING_KESCNP_1_H
#define NUMBERING_KESCNP_1_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 1. Reads no file: seven-digit local and ten-digit national
/// numbers, each optionally behind a one-character "0" or "1", are recognised by their length and
/// by area and exchange codes never beginning with 0 or 1.
class NUMBERING_API KesCNP_1 : public KesCNP {
public:
    KesCNP_1();
    ~KesCNP_1() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// The plan's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
