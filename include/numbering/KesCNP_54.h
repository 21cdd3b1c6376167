#ifndef NUMBERING_KESCNP_54_H
#define NUMBERING_KESCNP_54_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 54.
class KesCNP_54 : public KesCNP {
public:
    KesCNP_54();
    ~KesCNP_54() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
