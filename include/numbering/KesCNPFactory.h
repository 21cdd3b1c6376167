#ifndef NUMBERING_KESCNPFACTORY_H
#define NUMBERING_KESCNPFACTORY_H

#include "numbering/Export.h"

#include <string>

namespace numbering {

class KesCNP;

/// Maps a country calling code to its numbering plan class.
class NUMBERING_API KesCNPFactory {
public:
    /// A new plan (reference count 1, owned by the caller) for `countryNumber` ("49", exactly),
    /// or null when the country has no plan. A plan's constructor may read its files.
    static KesCNP* CreateInstance(std::string countryNumber);
};

} // namespace numbering

#endif
