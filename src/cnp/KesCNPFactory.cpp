#include "numbering/KesCNPFactory.h"

#include "PlanCache.h"

#include "numbering/KesCNPRegistry.h"

namespace numbering {

std::vector<std::string> planFileNames() {
    std::vector<std::string> names;
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans()) {
        if (plan.reads != KesCNPRegistry::Reads::Nothing)
            names.push_back(plan.installationFile());
        if (plan.readsAreaCodes())
            names.push_back(plan.defaultFile());
    }
    return names;
}

KesCNP* KesCNPFactory::CreateInstance(std::string countryNumber) {
    const KesCNPRegistry::Plan* plan = KesCNPRegistry::find(countryNumber);
    return plan != nullptr ? plan->create() : nullptr;
}

} // namespace numbering
