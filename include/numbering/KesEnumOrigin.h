#ifndef NUMBERING_KESENUMORIGIN_H
#define NUMBERING_KESENUMORIGIN_H

#include "numbering/Export.h"
#include "numbering/TypesafeEnum.h"

namespace numbering {

/// Where a caller stands seen from the installation. Always handled as a pointer to one of the
/// five static values, which are made in this order during static initialisation (ids 1 to 5).
class NUMBERING_API KesEnumOrigin : public TypesafeEnum {
public:
    static KesEnumOrigin ANY;           ///< not told (a caller identity made empty)
    static KesEnumOrigin INTERNATIONAL; ///< in another country
    static KesEnumOrigin NATIONAL;      ///< in the installation's country, outside its own area
    static KesEnumOrigin PRIVATE_1;     ///< not converted: an internal number or a service code
    static KesEnumOrigin PUBLIC_1;      ///< in the installation's own area

private:
    explicit KesEnumOrigin(std::string text) : TypesafeEnum(std::move(text)) {}
};

} // namespace numbering

#endif
