#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "NumberText.h"
#include "numbering/KesClid.h"
#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

namespace numbering {

// The caller is shown in the shortest form that is unambiguous from the installation: the
// subscriber alone in the own area, area and subscriber elsewhere in the own country, country,
// area and subscriber from abroad; digits only.
KesClid* KesNumberingRules::makeClid(KesDialRulesItem* myKesDialRulesItem, std::string strPhoneNumber) {
    requireArguments(myKesDialRulesItem, strPhoneNumber);
    if (Logger::m_Traces)
        logger->debug("makeClid with : " + strPhoneNumber);
    const std::string can = makeCanonicalNumber(myKesDialRulesItem, strPhoneNumber, "");
    if (can.empty())
        return nullptr;
    // A local number that could not be made canonical, or a service code.
    if (can[0] != '+')
        return new KesClid(can, &KesEnumOrigin::PRIVATE_1);

    const std::string cn = extractCountryNumberFromCanonicalNumber(can);
    const std::string area = extractAreaCodeOrNatPrefixFromCanonicalNumber(can);
    std::string sub = extractExtensionFromCanonicalNumber(can);

    const std::string countryId = myKesDialRulesItem->getCountryId();
    const std::string ownCn = config->getCountryNumber(countryId);
    KesCountryRuleItem* ownRule = config->getCountryRule(countryId);
    const std::string ldp = ownRule == nullptr ? std::string() : ownRule->getLongDistPrefix();

    if (cn != ownCn) {
        // The installation's own national prefix, not the caller country's, is left out.
        std::string number = cn;
        if (ldp.empty() || area != ldp)
            number += area;
        number += sub;
        return new KesClid(number, &KesEnumOrigin::INTERNATIONAL);
    }
    if (area == ldp)
        return new KesClid(sub, &KesEnumOrigin::NATIONAL);
    if (area == myKesDialRulesItem->getAreaCode())
        return new KesClid(sub, &KesEnumOrigin::PUBLIC_1);
    return new KesClid(area + sub, &KesEnumOrigin::NATIONAL);
}

} // namespace numbering
