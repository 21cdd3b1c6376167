#ifndef NUMBERING_KESCNP_7_H
#define NUMBERING_KESCNP_7_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 7.
class KesCNP_7 : public KesCNP {
public:
    KesCNP_7();
    ~KesCNP_7() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
