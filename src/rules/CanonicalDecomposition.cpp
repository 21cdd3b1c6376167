#include "numbering/KesNumberingRules.h"

#include "CanonicalParts.h"

// Pure string splitting of canonical numbers ("+33 (1) 23456789"): no configuration is consulted,
// and a missing part is an empty string.

namespace numbering {

std::string KesNumberingRules::extractCountryNumberFromCanonicalNumber(std::string strCanPhoneNumber) {
    return std::string(countryNumberOf(strCanPhoneNumber));
}

std::string KesNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string strCanPhoneNumber) {
    return std::string(areaCodeOrNatPrefixOf(strCanPhoneNumber));
}

std::string KesNumberingRules::extractExtensionFromCanonicalNumber(std::string strCanPhoneNumber) {
    std::string result;
    appendExtensionOf(strCanPhoneNumber, result);
    return result;
}

} // namespace numbering
