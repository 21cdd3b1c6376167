// The one table of the country plans. Adding a country: docs/adding-a-plan.md.
#include "numbering/KesCNPRegistry.h"

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

using Reads = KesCNPRegistry::Reads;
using Unknown = KesCNPRegistry::UnknownAreaCode;
const bool LOOKS_UP_COUNTRY = true;

} // namespace

const std::vector<KesCNPRegistry::Plan>& KesCNPRegistry::plans() {
    static const std::vector<Plan> table = {
        {"1", "US", make<KesCNP_1>},
        {"31", "NL", make<KesCNP_31>, Reads::TranslateAndAreaCodes, Unknown::Neutral},
        {"32", "BE", make<KesCNP_32>, Reads::AreaCodes, Unknown::Neutral},
        {"33", "FR", make<KesCNP_33>, Reads::Nothing, Unknown::Neutral, LOOKS_UP_COUNTRY},
        {"41", "CH", make<KesCNP_41>},
        {"43", "AT", make<KesCNP_43>, Reads::TranslateAndAreaCodes, Unknown::Guessed},
        {"44", "GB", make<KesCNP_44>, Reads::TranslateAndAreaCodes, Unknown::Neutral},
        {"49", "DE", make<KesCNP_49>, Reads::TranslateAndAreaCodes, Unknown::Guessed},
        {"52", "MX", make<KesCNP_52>, Reads::TranslateAndAreaCodes, Unknown::Guessed},
        {"54", "AR", make<KesCNP_54>, Reads::TranslateAndAreaCodes, Unknown::Guessed, LOOKS_UP_COUNTRY},
        {"57", "CO", make<KesCNP_57>, Reads::Operators},
        {"61", "AU", make<KesCNP_61>, Reads::TranslateAndAreaCodes, Unknown::Neutral},
        {"64", "NZ", make<KesCNP_64>},
        {"7", "RU", make<KesCNP_7>, Reads::Nothing, Unknown::Neutral, LOOKS_UP_COUNTRY},
        {"353", "IE", make<KesCNP_353>, Reads::TranslateAndAreaCodes, Unknown::Neutral},
    };
    return table;
}

const KesCNPRegistry::Plan* KesCNPRegistry::find(const std::string& callingCode) {
    for (const Plan& plan : plans())
        if (callingCode == plan.callingCode)
            return &plan;
    return nullptr;
}

std::string KesCNPRegistry::installationFile(const std::string& callingCode) {
    return "tz310cnp_" + callingCode + ".properties";
}

std::string KesCNPRegistry::defaultFile(const std::string& callingCode) {
    return "tz310cnp_" + callingCode + "_default.properties";
}

} // namespace numbering
