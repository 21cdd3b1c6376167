#ifndef NUMBERING_KESCNP_57_H
#define NUMBERING_KESCNP_57_H

#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 57.
class KesCNP_57 : public KesCNP {
public:
    KesCNP_57();
    ~KesCNP_57() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    static Logger* logger;
};

} // namespace numbering

#endif
