#ifndef NUMBERING_KESCNP_61_H
#define NUMBERING_KESCNP_61_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 61.
class KesCNP_61 : public KesCNP {
public:
    KesCNP_61();
    ~KesCNP_61() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
