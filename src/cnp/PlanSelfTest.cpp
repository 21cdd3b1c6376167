#include "PlanSelfTest.h"

#include "numbering/KesCNP.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesUnsupportedCountryException.h"

#include <exception>
#include <iostream>

namespace numbering {

void printPlanSelfTest(KesCNP& plan, const SelfTestInstallation& installation, const SelfTestCase* cases,
                       std::size_t count) {
    try {
        KesDialRulesItem rules(installation.country, installation.extPrefix, installation.localNbLength,
                               installation.areaCode, 0, "");
        std::cout << "Dialing rules : " << rules.ToString() << std::endl;
        for (std::size_t i = 0; i < count; ++i)
            std::cout << cases[i].label << plan.dlr_Country_MakeCanonicalNumber(cases[i].input, &rules)
                      << std::endl;
    } catch (const KesUnsupportedCountryException& e) {
        std::cout << e.what() << std::endl;
    } catch (const std::exception& e) {
        std::cout << e.what() << std::endl;
    }
}

} // namespace numbering
