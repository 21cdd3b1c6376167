#ifndef NUMBERING_KESDIALABLEFACTORY_H
#define NUMBERING_KESDIALABLEFACTORY_H

#include "numbering/Export.h"

#include <string>

namespace numbering {

class KesDialable;

/// Maps a country calling code to its dialing strategy class.
class NUMBERING_API KesDialableFactory {
public:
    /// A new strategy (reference count 1, owned by the caller); the generic one for any code
    /// without a strategy of its own. Never null.
    static KesDialable* CreateInstance(std::string countryNumber);
};

} // namespace numbering

#endif
