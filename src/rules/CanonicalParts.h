#ifndef NUMBERING_SRC_RULES_CANONICALPARTS_H
#define NUMBERING_SRC_RULES_CANONICALPARTS_H

// The reader of canonical numbers ("+33 (1) 23456789"): country number, area code or national
// prefix, subscriber part. The facade's operations have always disagreed on odd input (a "(" in
// first position, text before the calling code, separators in the subscriber part), and each
// keeps its answer: every caller names the reading it needs. Pure string splitting, no
// configuration; a missing part is empty.

#include "common/NumberText.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace numbering {

/// Views into the canonical number read.
struct CanonicalParts {
    std::string_view country;    // the calling code
    std::string_view area;       // the area code or the national prefix
    std::string_view subscriber; // the rest, separators included
};

enum class CanonicalReading {
    /// The extract operations: the digits right after a leading "+"; what stands between the first
    /// "(" and the first ")" (a "(" in first position opens nothing); everything behind the first
    /// ")", else behind the first blank.
    Extracting,
    /// A display mask and the GSM form, on a number that has a "(": the text from the second
    /// character to the first blank; what stands between the first "(" and the ")" after it;
    /// everything from the second character behind that ")" (the blank is passed over).
    AtSeparators,
    /// Dialing: within the first MAX_PHONE_NUMBER_LENGTH characters, the first run of digits after
    /// the first character; the next run of digits, when the number has both parentheses anywhere;
    /// everything after that.
    DigitRuns,
};

namespace canonicalreading {

using size_type = std::string_view::size_type;

/// The run of digits of `text` that begins at `i`; `i` moves past it.
inline std::string_view digitRun(std::string_view text, size_type& i) {
    const size_type begin = i;
    while (i < text.size() && isDigit(text[i]))
        ++i;
    return text.substr(begin, i - begin);
}

inline CanonicalParts extracting(std::string_view canonical) {
    CanonicalParts parts;
    if (startsWith(canonical, '+')) {
        size_type i = 1;
        parts.country = digitRun(canonical, i);
    }
    const size_type open = indexOf(canonical, '(');
    const size_type close = indexOf(canonical, ')');
    if (open != std::string_view::npos && open != 0 && close != std::string_view::npos && open + 1 < close)
        parts.area = canonical.substr(open + 1, close - open - 1);
    const size_type start = close != std::string_view::npos ? close : indexOf(canonical, ' ');
    if (start != std::string_view::npos)
        parts.subscriber = canonical.substr(start + 1);
    return parts;
}

inline CanonicalParts atSeparators(std::string_view canonical) {
    CanonicalParts parts;
    parts.country = between(canonical, 1, indexOf(canonical, ' '));
    const size_type open = indexOf(canonical, '(');
    if (open == std::string_view::npos)
        return parts;
    const size_type close = indexOf(canonical, ')', open);
    parts.area = between(canonical, open + 1, close);
    if (close != std::string_view::npos && close + 2 < canonical.size())
        parts.subscriber = canonical.substr(close + 2);
    return parts;
}

inline CanonicalParts digitRuns(std::string_view canonical) {
    const std::string_view text = canonical.substr(
        0, std::min<size_type>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH, canonical.size()));
    CanonicalParts parts;
    size_type i = 1;
    while (i < text.size() && !isDigit(text[i]))
        ++i;
    parts.country = digitRun(text, i);
    if (i < text.size())
        ++i; // the character behind the calling code, whatever it is
    while (i < text.size() && !isDigit(text[i]) && text[i] != '(')
        ++i;
    if (i < text.size() && text[i] == '(')
        ++i;
    if (indexOf(canonical, '(') != std::string_view::npos &&
        indexOf(canonical, ')') != std::string_view::npos) {
        parts.area = digitRun(text, i);
        while (i < text.size() && !isDigit(text[i]))
            ++i;
    }
    if (i < text.size())
        parts.subscriber = text.substr(i);
    return parts;
}

} // namespace canonicalreading

/// The parts of `canonical` as `reading` finds them.
inline CanonicalParts readCanonical(std::string_view canonical, CanonicalReading reading) {
    switch (reading) {
    case CanonicalReading::Extracting:
        return canonicalreading::extracting(canonical);
    case CanonicalReading::AtSeparators:
        return canonicalreading::atSeparators(canonical);
    case CanonicalReading::DigitRuns:
        break;
    }
    return canonicalreading::digitRuns(canonical);
}

/// Appends the digits of `text` to `out`: the subscriber number without its separators.
inline void appendDigits(std::string_view text, std::string& out) {
    for (char c : text)
        if (isDigit(c))
            out += c;
}

// The extract operations, each traced with the facade's line for it, so that the public
// operations and the conversions that take a part of a number their way trace alike.

inline std::string_view countryNumberOf(std::string_view canonical) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractCountryNumber('" + std::string(canonical) + "')");
    return readCanonical(canonical, CanonicalReading::Extracting).country;
}

inline std::string_view areaCodeOrNatPrefixOf(std::string_view canonical) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractAreaCodeOrNatPrefix('" + std::string(canonical) + "')");
    return readCanonical(canonical, CanonicalReading::Extracting).area;
}

/// Appends the digits of the subscriber part to `out`; its separators vanish.
inline void appendExtensionOf(std::string_view canonical, std::string& out) {
    if (Logger::m_Traces)
        KesNumberingRules::logger->debug("extractExtension('" + std::string(canonical) + "')");
    appendDigits(readCanonical(canonical, CanonicalReading::Extracting).subscriber, out);
}

} // namespace numbering

#endif
