#ifndef NUMBERING_KESDIALABLE_52_H
#define NUMBERING_KESDIALABLE_52_H

#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of calling code 52.
class KesDialable_52 : public KesDialable {
public:
    KesDialable_52() = default;
};

} // namespace numbering

#endif
