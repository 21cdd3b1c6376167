#ifndef NUMBERING_KESENUMORIGIN_H
#define NUMBERING_KESENUMORIGIN_H

#include "numbering/Export.h"
#include "numbering/TypesafeEnum.h"

namespace numbering {

/// Where a caller stands seen from the installation. Always handled as a pointer to one of the
/// five static values, which are made in this order during static initialisation (ids 1 to 5).
class NUMBERING_API KesEnumOrigin : public TypesafeEnum {
public:
    static KesEnumOrigin ANY;
    static KesEnumOrigin INTERNATIONAL;
    static KesEnumOrigin NATIONAL;
    static KesEnumOrigin PRIVATE_1;
    static KesEnumOrigin PUBLIC_1;

private:
    explicit KesEnumOrigin(std::string name) : TypesafeEnum(std::move(name)) {}
};

} // namespace numbering

#endif
