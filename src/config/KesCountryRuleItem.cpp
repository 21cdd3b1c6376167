#include "numbering/KesCountryRuleItem.h"

#include <Poco/String.h>

#include <utility>

namespace numbering {

int KesCountryRuleItem::_count = 0;

namespace {

// The dialling prefix of a rule: everything before its first "F" or, lacking one, its first "I".
std::string prefixOfRule(const std::string& rule) {
    std::string::size_type letter = rule.find('F');
    if (letter == std::string::npos)
        letter = rule.find('I');
    return letter == std::string::npos ? std::string() : rule.substr(0, letter);
}

} // namespace

KesCountryRuleItem::KesCountryRuleItem(std::string number, std::string intPfx, std::string intRule,
                                       std::string ldRule, std::string locRule, std::string name)
    : countryNumber(std::move(number)), internatPfx(std::move(intPfx)), internatRule(std::move(intRule)),
      longDistRule(Poco::trim(ldRule)), localRule(std::move(locRule)),
      longDistPrefix(prefixOfRule(longDistRule)), localDistPrefix(prefixOfRule(localRule)),
      countryName(std::move(name)) {}

KesCountryRuleItem::~KesCountryRuleItem() = default;

void KesCountryRuleItem::duplicate() {
    references.duplicate();
}

void KesCountryRuleItem::release() {
    if (references.release())
        delete this;
}

} // namespace numbering
