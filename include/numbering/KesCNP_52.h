#ifndef NUMBERING_KESCNP_52_H
#define NUMBERING_KESCNP_52_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 52.
class KesCNP_52 : public KesCNP {
public:
    KesCNP_52();
    ~KesCNP_52() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
