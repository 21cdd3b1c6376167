#ifndef NUMBERING_KESDIALABLE_7_H
#define NUMBERING_KESDIALABLE_7_H

#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of calling code 7.
class KesDialable_7 : public KesDialable {
public:
    KesDialable_7() = default;
};

} // namespace numbering

#endif
