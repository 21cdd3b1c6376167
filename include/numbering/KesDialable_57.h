#ifndef NUMBERING_KESDIALABLE_57_H
#define NUMBERING_KESDIALABLE_57_H

#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of calling code 57.
class KesDialable_57 : public KesDialable {
public:
    KesDialable_57() = default;
};

} // namespace numbering

#endif
