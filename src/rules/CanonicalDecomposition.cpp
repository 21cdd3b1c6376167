#include "numbering/KesNumberingRules.h"

#include "FacadeInternals.h"
#include "common/CanonicalNumber.h"
#include "numbering/Logger.h"

// Pure string splitting of canonical numbers ("+33 (1) 23456789"): no configuration is consulted,
// and a missing part is an empty string.

namespace numbering {

void traceExtractLine(const char* operation, std::string_view canonical) {
    KesNumberingRules::logger->debug(std::string(operation) + "('" + std::string(canonical) + "')");
}

std::string KesNumberingRules::extractCountryNumberFromCanonicalNumber(std::string strCanPhoneNumber) {
    traceExtract("extractCountryNumber", strCanPhoneNumber);
    return std::string(CanonicalNumber::read(strCanPhoneNumber).country);
}

std::string KesNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string strCanPhoneNumber) {
    traceExtract("extractAreaCodeOrNatPrefix", strCanPhoneNumber);
    return std::string(CanonicalNumber::read(strCanPhoneNumber).area);
}

std::string KesNumberingRules::extractExtensionFromCanonicalNumber(std::string strCanPhoneNumber) {
    traceExtract("extractExtension", strCanPhoneNumber);
    std::string result;
    CanonicalNumber::read(strCanPhoneNumber).appendSubscriberDigits(result);
    return result;
}

} // namespace numbering
