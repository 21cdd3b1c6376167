#include "numbering/KesDialableFactory.h"

#include "numbering/KesDialable_52.h"
#include "numbering/KesDialable_54.h"
#include "numbering/KesDialable_57.h"
#include "numbering/KesDialable_61.h"
#include "numbering/KesDialable_7.h"

namespace numbering {

namespace {

template <class Strategy> KesDialable* make() {
    return new Strategy();
}

// The countries whose dialing the rule letters cannot express; each also has a plan
// (KesCNPRegistry), whose canonical forms the strategy reads back.
struct StrategyRow {
    const char* countryNumber;
    KesDialable* (*create)();
};
const StrategyRow STRATEGIES[] = {
    {"61", make<KesDialable_61>}, {"7", make<KesDialable_7>},   {"52", make<KesDialable_52>},
    {"54", make<KesDialable_54>}, {"57", make<KesDialable_57>},
};

} // namespace

KesDialable* KesDialableFactory::CreateInstance(std::string countryNumber) {
    for (const StrategyRow& row : STRATEGIES)
        if (countryNumber == row.countryNumber)
            return row.create();
    return new KesDialable();
}

} // namespace numbering
