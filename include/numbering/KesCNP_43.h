#ifndef NUMBERING_KESCNP_43_H
#define NUMBERING_KESCNP_43_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 43.
class KesCNP_43 : public KesCNP {
public:
    KesCNP_43();
    ~KesCNP_43() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
