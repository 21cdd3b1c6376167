#include "numbering/KesEnumOrigin.h"

namespace numbering {

// Definition order fixes the ids: ANY 1, INTERNATIONAL 2, NATIONAL 3, PRIVATE_1 4, PUBLIC_1 5.
KesEnumOrigin KesEnumOrigin::ANY("Any");
KesEnumOrigin KesEnumOrigin::INTERNATIONAL("International");
KesEnumOrigin KesEnumOrigin::NATIONAL("National");
KesEnumOrigin KesEnumOrigin::PRIVATE_1("Private");
KesEnumOrigin KesEnumOrigin::PUBLIC_1("Public");

} // namespace numbering
