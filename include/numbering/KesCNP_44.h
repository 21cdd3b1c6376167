#ifndef NUMBERING_KESCNP_44_H
#define NUMBERING_KESCNP_44_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 44.
class KesCNP_44 : public KesCNP {
public:
    KesCNP_44();
    ~KesCNP_44() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
