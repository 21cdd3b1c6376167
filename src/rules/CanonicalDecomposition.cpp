#include "numbering/KesNumberingRules.h"

#include "NumberText.h"
#include "numbering/Logger.h"

// Pure string splitting of canonical numbers ("+33 (1) 23456789"): no configuration is consulted,
// and a missing part is an empty string.

namespace numbering {

std::string KesNumberingRules::extractCountryNumberFromCanonicalNumber(std::string strCanPhoneNumber) {
    if (Logger::m_Traces)
        logger->debug("extractCountryNumber('" + strCanPhoneNumber + "')");
    std::string result;
    if (!startsWith(strCanPhoneNumber, '+'))
        return result;
    for (std::string::size_type i = 1; i < strCanPhoneNumber.size() && isDigit(strCanPhoneNumber[i]); ++i)
        result += strCanPhoneNumber[i];
    return result;
}

std::string KesNumberingRules::extractAreaCodeOrNatPrefixFromCanonicalNumber(std::string strCanPhoneNumber) {
    if (Logger::m_Traces)
        logger->debug("extractAreaCodeOrNatPrefix('" + strCanPhoneNumber + "')");
    const std::string::size_type open = strCanPhoneNumber.find('(');
    const std::string::size_type close = strCanPhoneNumber.find(')');
    // A "(" in first position does not open an area code.
    if (open == std::string::npos || open == 0 || close == std::string::npos || open + 1 >= close)
        return std::string();
    return strCanPhoneNumber.substr(open + 1, close - open - 1);
}

std::string KesNumberingRules::extractExtensionFromCanonicalNumber(std::string strCanPhoneNumber) {
    if (Logger::m_Traces)
        logger->debug("extractExtension('" + strCanPhoneNumber + "')");
    std::string result;
    std::string::size_type start = strCanPhoneNumber.find(')');
    if (start == std::string::npos)
        start = strCanPhoneNumber.find(' ');
    if (start == std::string::npos)
        return result;
    // Every digit from the first one behind the area code on; separators inside vanish.
    for (std::string::size_type i = start + 1; i < strCanPhoneNumber.size(); ++i)
        if (isDigit(strCanPhoneNumber[i]))
            result += strCanPhoneNumber[i];
    return result;
}

} // namespace numbering
