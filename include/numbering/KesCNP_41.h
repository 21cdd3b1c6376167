#ifndef NUMBERING_KESCNP_41_H
#define NUMBERING_KESCNP_41_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

class Logger;

namespace numbering {

/// The numbering plan of calling code 41. Reads no file: national numbers are recognised by their
/// length (9 or 10 characters, directly or behind the outside-line prefix) and a few prefixes.
class NUMBERING_API KesCNP_41 : public KesCNP {
public:
    KesCNP_41();
    ~KesCNP_41() override;

    std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) override;

    /// National prefix 0 followed by the one-digit area code 1.
    static constexpr char szLocalNumberPfx[] = "01";
    /// National free-phone prefix.
    static constexpr char szFreePhonePfx[] = "0800";

    /// The plan's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
