#include "numbering/KesClid.h"

#include <utility>

namespace numbering {

int KesClid::_count = 0;

KesClid::KesClid() : origin(&KesEnumOrigin::ANY) {}

KesClid::KesClid(std::string clidNumber, KesEnumOrigin* clidOrigin)
    : number(std::move(clidNumber)), origin(clidOrigin) {}

KesClid::~KesClid() = default;

void KesClid::setNumber(std::string clidNumber) {
    number = std::move(clidNumber);
}
void KesClid::setOrigin(KesEnumOrigin* clidOrigin) {
    origin = clidOrigin;
}
std::string KesClid::getNumber() {
    return number;
}
KesEnumOrigin* KesClid::getOrigin() {
    return origin;
}

void KesClid::duplicate() {
    references.duplicate();
}

void KesClid::release() {
    if (references.release())
        delete this;
}

} // namespace numbering
