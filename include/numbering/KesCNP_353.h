#ifndef NUMBERING_KESCNP_353_H
#define NUMBERING_KESCNP_353_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 353.
class KesCNP_353 : public KesCNP {
public:
    KesCNP_353();
    ~KesCNP_353() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
