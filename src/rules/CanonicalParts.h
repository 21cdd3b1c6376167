#ifndef NUMBERING_SRC_RULES_CANONICALPARTS_H
#define NUMBERING_SRC_RULES_CANONICALPARTS_H

// The three parts of a canonical number ("+33 (1) 23456789"): country number, area code or
// national prefix, subscriber digits. Pure string splitting, no configuration; a missing part is
// empty. Each traces the facade's line for it, so that the public extract operations and the
// conversions that split numbers on their own way trace alike.

#include "NumberText.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"

#include <string>
#include <string_view>

namespace numbering {

/// The digits right after the leading "+" ("+ 33" has none).
inline std::string_view countryNumberOf(std::string_view canonical) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractCountryNumber('" + std::string(canonical) + "')");
    if (!startsWith(canonical, '+'))
        return std::string_view();
    std::string_view::size_type end = 1;
    while (end < canonical.size() && isDigit(canonical[end]))
        ++end;
    return canonical.substr(1, end - 1);
}

/// What stands between the first "(" and the first ")"; a "(" in first position opens nothing.
inline std::string_view areaCodeOrNatPrefixOf(std::string_view canonical) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractAreaCodeOrNatPrefix('" + std::string(canonical) + "')");
    const std::string_view::size_type open = indexOf(canonical, '(');
    const std::string_view::size_type close = indexOf(canonical, ')');
    if (open == std::string_view::npos || open == 0 || close == std::string_view::npos || open + 1 >= close)
        return std::string_view();
    return canonical.substr(open + 1, close - open - 1);
}

/// Appends every digit behind the area code (behind the first ")", else the first blank) to `out`;
/// separators inside the subscriber part vanish.
inline void appendExtensionOf(std::string_view canonical, std::string& out) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractExtension('" + std::string(canonical) + "')");
    std::string_view::size_type start = indexOf(canonical, ')');
    if (start == std::string_view::npos)
        start = indexOf(canonical, ' ');
    if (start == std::string_view::npos)
        return;
    for (std::string_view::size_type i = start + 1; i < canonical.size(); ++i)
        if (isDigit(canonical[i]))
            out += canonical[i];
}

} // namespace numbering

#endif
