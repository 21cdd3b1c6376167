#ifndef NUMBERING_KESCNP_32_H
#define NUMBERING_KESCNP_32_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 32.
class KesCNP_32 : public KesCNP {
public:
    KesCNP_32();
    ~KesCNP_32() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
