#include "numbering/KesCNPFactory.h"

#include "PlanCache.h"

#include "numbering/KesCNP_1.h"
#include "numbering/KesCNP_31.h"
#include "numbering/KesCNP_32.h"
#include "numbering/KesCNP_33.h"
#include "numbering/KesCNP_353.h"
#include "numbering/KesCNP_41.h"
#include "numbering/KesCNP_43.h"
#include "numbering/KesCNP_44.h"
#include "numbering/KesCNP_49.h"
#include "numbering/KesCNP_52.h"
#include "numbering/KesCNP_54.h"
#include "numbering/KesCNP_57.h"
#include "numbering/KesCNP_61.h"
#include "numbering/KesCNP_64.h"
#include "numbering/KesCNP_7.h"

namespace numbering {

namespace {

template <class Plan> KesCNP* make() {
    return new Plan();
}

struct PlanRow {
    const char* countryNumber;
    KesCNP* (*create)();
};

const PlanRow PLANS[] = {
    {"1", make<KesCNP_1>},   {"31", make<KesCNP_31>}, {"32", make<KesCNP_32>},   {"33", make<KesCNP_33>},
    {"41", make<KesCNP_41>}, {"43", make<KesCNP_43>}, {"44", make<KesCNP_44>},   {"49", make<KesCNP_49>},
    {"52", make<KesCNP_52>}, {"54", make<KesCNP_54>}, {"57", make<KesCNP_57>},   {"61", make<KesCNP_61>},
    {"64", make<KesCNP_64>}, {"7", make<KesCNP_7>},   {"353", make<KesCNP_353>},
};

} // namespace

std::vector<std::string> planFileNames() {
    std::vector<std::string> names;
    for (const PlanRow& row : PLANS) {
        names.push_back(std::string("tz310cnp_") + row.countryNumber + ".properties");
        names.push_back(std::string("tz310cnp_") + row.countryNumber + "_default.properties");
    }
    return names;
}

KesCNP* KesCNPFactory::CreateInstance(std::string countryNumber) {
    for (const PlanRow& row : PLANS)
        if (countryNumber == row.countryNumber)
            return row.create();
    return nullptr;
}

} // namespace numbering
