#ifndef NUMBERING_KESCNP_31_H
#define NUMBERING_KESCNP_31_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 31.
class KesCNP_31 : public KesCNP {
public:
    KesCNP_31();
    ~KesCNP_31() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
