#ifndef NUMBERING_SRC_RULES_NUMBERTEXT_H
#define NUMBERING_SRC_RULES_NUMBERTEXT_H

// Small text tests and edits on number strings, shared by the facade's conversions. They work in
// place or on references so that the conversions build no strings they do not return.

#include "numbering/KesNumberingRules.h"

#include <Poco/Ascii.h>
#include <Poco/String.h>

#include <string>

namespace numbering {

inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// A presentation character (" ()-."), dropped by every conversion.
inline bool isFormatCharacter(char c) {
    return KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER.find(c) != std::string::npos;
}

/// A service character ("*#ABCD"): kept, and the number is a service code.
inline bool isServiceCharacter(char c) {
    return KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER.find(c) != std::string::npos;
}

/// True when `text` begins with `prefix`; every text begins with an empty prefix.
inline bool startsWith(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

inline bool startsWith(const std::string& text, char c) {
    return !text.empty() && text[0] == c;
}

inline bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

/// Trims the number and closes the gap behind a leading "+": "  + 33 1 " becomes "+33 1".
inline void trimTypedNumber(std::string& number) {
    Poco::trimInPlace(number);
    if (!startsWith(number, '+'))
        return;
    std::string::size_type digits = 1;
    while (digits < number.size() && Poco::Ascii::isSpace(number[digits]))
        ++digits;
    number.erase(1, digits - 1);
}

/// The characters of `text` from `begin` up to, not including, `end`; "" when `begin` lies past
/// the text, the rest of the text when `end` does.
inline std::string between(const std::string& text, std::string::size_type begin,
                           std::string::size_type end) {
    if (begin >= text.size() || end <= begin)
        return std::string();
    return text.substr(begin, end - begin);
}

} // namespace numbering

#endif
