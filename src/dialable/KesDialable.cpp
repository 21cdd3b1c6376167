#include "numbering/KesDialable.h"

#include "common/NumberText.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"

#include "numbering/KesCountryRuleItem.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

int KesDialable::_count = 0;
Logger* KesDialable::logger = Logger::getLogger(typeid(KesDialable).name());

KesDialable::KesDialable() : owner(MakingFor::owner()) {
    if (Logger::m_Traces)
        logger->debug("KesDialable()");
}

KesDialable::~KesDialable() = default;

void KesDialable::duplicate() {
    references.duplicate();
}

void KesDialable::release() {
    if (references.release())
        delete this;
}

std::string KesDialable::extractOperatorPrefix(std::string) {
    return std::string();
}

void KesDialable::dropDestinationNationalPrefix(const std::string& country, std::string& areaNatPfx) const {
    // Only an exact match counts: an area code that merely begins with the prefix stays.
    const Conversion conversion(owner);
    KesCountryRuleItem* destination = storeOf(conversion.generation()).findCountryRuleOfNumber(country);
    if (destination == nullptr)
        return;
    std::string destinationPrefix = destination->getLongDistPrefix();
    if (!destinationPrefix.empty() && areaNatPfx == destinationPrefix)
        areaNatPfx.clear();
}

void KesDialable::mergePrefix(std::string& result, const std::string& prefix) {
    for (std::string::size_type i = 0; i < prefix.size(); ++i)
        if (i >= result.size() || result[i] != prefix[i])
            result.insert(i, 1, prefix[i]);
}

std::string KesDialable::makeInternationalDialableNumber(std::string& country, std::string& areaNatPfx,
                                                         std::string& number,
                                                         KesCountryRuleItem* countryRule) {
    std::string result = countryRule->getInternatPfx();
    const std::string rule = countryRule->getInternatRule();
    if (rule.find('E') != std::string::npos)
        result += country;
    if (rule.find('F') != std::string::npos) {
        dropDestinationNationalPrefix(country, areaNatPfx);
        result += areaNatPfx;
    }
    result += number;
    return result;
}

std::string KesDialable::applyRule(const std::string& rule, const std::string& prefix,
                                   const std::string& areaNatPfx, const std::string& number) const {
    std::string result = number;
    if (rule.empty())
        return result;
    bool withArea = indexOf(rule, 'F') != std::string_view::npos;
    if (withArea)
        result.insert(0, areaNatPfx);
    if (withArea || indexOf(rule, 'I') != std::string_view::npos)
        mergePrefix(result, prefix);
    return result;
}

std::string KesDialable::makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                    KesCountryRuleItem* countryRule, KesDialRulesItem*) {
    std::string result =
        applyRule(countryRule->longDistRuleText(), countryRule->longDistPrefixText(), areaNatPfx, number);
    if (Logger::m_Traces)
        logger->debug("makeLongDistDialableNumber() AreaNatPfx: '" + areaNatPfx + "' dest: " + number +
                      " result: " + result);
    return result;
}

std::string KesDialable::makeLocalDialableNumber(std::string& areaNatPfx, std::string& number,
                                                 KesCountryRuleItem* countryRule) {
    return applyRule(countryRule->getLocalRule(), countryRule->getLocalDistPrefix(), areaNatPfx, number);
}

} // namespace numbering
