#include "numbering/KesNumberingRules.h"

#include "ConversionGuard.h"
#include "FacadeInternals.h"
#include "common/CanonicalNumber.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
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
    const Conversion conversion; // the canonical form and the country rules from one configuration
    if (Logger::m_Traces)
        logger->debug("makeClid with : " + strPhoneNumber);
    // Only the digits are read; a host's subclass is asked through the three-argument conversion,
    // which it may override.
    std::string can = ownConversions(*this)
                          ? canonicalForDigits(*this, myKesDialRulesItem, strPhoneNumber, false)
                          : makeCanonicalNumber(myKesDialRulesItem, std::move(strPhoneNumber), "");
    if (can.empty())
        return nullptr;
    // A local number that could not be made canonical, or a service code.
    if (can[0] != '+')
        return new KesClid(std::move(can), &KesEnumOrigin::PRIVATE_1);

    traceExtract("extractCountryNumber", can);
    traceExtract("extractAreaCodeOrNatPrefix", can);
    traceExtract("extractExtension", can);
    const CanonicalNumber parts = CanonicalNumber::read(can);
    const std::string_view cn = parts.country;
    const std::string_view area = parts.area;
    std::string sub;
    parts.appendSubscriberDigits(sub);

    KesCountryRuleItem* ownRule =
        storeOf(conversion.generation()).findCountryRule(myKesDialRulesItem->getCountryId());
    static const std::string none;
    const std::string& ownCn = ownRule == nullptr ? none : ownRule->countryNumberText();
    const std::string& ldp = ownRule == nullptr ? none : ownRule->longDistPrefixText();

    KesClid* clid = [&] {
        if (cn != ownCn) {
            // The installation's own national prefix, not the caller country's, is left out.
            std::string number;
            number.reserve(cn.size() + area.size() + sub.size());
            number += cn;
            if (ldp.empty() || area != ldp)
                number += area;
            number += sub;
            return new KesClid(std::move(number), &KesEnumOrigin::INTERNATIONAL);
        }
        if (area == ldp)
            return new KesClid(std::move(sub), &KesEnumOrigin::NATIONAL);
        if (area == myKesDialRulesItem->getAreaCode())
            return new KesClid(std::move(sub), &KesEnumOrigin::PUBLIC_1);
        return new KesClid(std::string(area) + sub, &KesEnumOrigin::NATIONAL);
    }();
    recycleString(std::move(can));
    return clid;
}

} // namespace numbering
