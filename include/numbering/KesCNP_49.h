#ifndef NUMBERING_KESCNP_49_H
#define NUMBERING_KESCNP_49_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 49.
class KesCNP_49 : public KesCNP {
public:
    KesCNP_49();
    ~KesCNP_49() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
