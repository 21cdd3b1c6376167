#include "numbering/KesCNP.h"

namespace numbering {

int KesCNP::_count = 0;

KesCNP::~KesCNP() = default;

void KesCNP::duplicate() {
    references.duplicate();
}

void KesCNP::release() {
    if (references.release())
        delete this;
}

} // namespace numbering
