#include "numbering/KesCNP.h"

#include "lifecycle/Conversion.h"

namespace numbering {

int KesCNP::_count = 0;

KesCNP::KesCNP() : owner(MakingFor::owner()) {}

KesCNP::~KesCNP() = default;

void KesCNP::duplicate() {
    references.duplicate();
}

void KesCNP::release() {
    if (references.release())
        delete this;
}

} // namespace numbering
