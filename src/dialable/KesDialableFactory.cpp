#include "numbering/KesDialableFactory.h"

#include "numbering/KesDialable_52.h"
#include "numbering/KesDialable_54.h"
#include "numbering/KesDialable_57.h"
#include "numbering/KesDialable_61.h"
#include "numbering/KesDialable_7.h"

namespace numbering {

KesDialable* KesDialableFactory::CreateInstance(std::string countryNumber) {
    if (countryNumber == "61")
        return new KesDialable_61();
    if (countryNumber == "7")
        return new KesDialable_7();
    if (countryNumber == "52")
        return new KesDialable_52();
    if (countryNumber == "54")
        return new KesDialable_54();
    if (countryNumber == "57")
        return new KesDialable_57();
    return new KesDialable();
}

} // namespace numbering
