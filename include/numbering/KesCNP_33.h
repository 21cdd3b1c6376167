#ifndef NUMBERING_KESCNP_33_H
#define NUMBERING_KESCNP_33_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 33.
class KesCNP_33 : public KesCNP {
public:
    KesCNP_33();
    ~KesCNP_33() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
