#ifndef NUMBERING_KESCNP_41_H
#define NUMBERING_KESCNP_41_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 41.
class KesCNP_41 : public KesCNP {
public:
    KesCNP_41();
    ~KesCNP_41() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
