#ifndef NUMBERING_KESDIALABLE_54_H
#define NUMBERING_KESDIALABLE_54_H

#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of calling code 54.
class KesDialable_54 : public KesDialable {
public:
    KesDialable_54() = default;
};

} // namespace numbering

#endif
