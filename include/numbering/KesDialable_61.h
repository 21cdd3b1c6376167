#ifndef NUMBERING_KESDIALABLE_61_H
#define NUMBERING_KESDIALABLE_61_H

#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of calling code 61.
class KesDialable_61 : public KesDialable {
public:
    KesDialable_61() = default;
};

} // namespace numbering

#endif
