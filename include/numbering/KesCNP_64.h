#ifndef NUMBERING_KESCNP_64_H
#define NUMBERING_KESCNP_64_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 64.
class KesCNP_64 : public KesCNP {
public:
    KesCNP_64();
    ~KesCNP_64() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
