#ifndef NUMBERING_SRC_COMMON_NUMBERTEXT_H
#define NUMBERING_SRC_COMMON_NUMBERTEXT_H

// Small text tests and edits on number strings, shared by every subsystem: the country plans, the
// dialing strategies and the facade's conversions. They work in place or on views so that a
// conversion builds no strings it does not return.

#include <Poco/Ascii.h>
#include <Poco/String.h>

#include <array>
#include <string>
#include <string_view>

namespace numbering {

inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether every character of `text` is a digit; an empty text is.
inline bool allDigits(std::string_view text) {
    for (char c : text)
        if (!isDigit(c))
            return false;
    return true;
}

/// Whether `c` is one of the characters of `set`: a plain loop over a set of a few characters, run
/// for every character of a number, costs less than a call of std::string::find.
inline bool isOneOf(char c, const std::string& set) {
    for (char member : set)
        if (member == c)
            return true;
    return false;
}

/// Appends the digits of `text` to `out`, leaving out every other character.
inline void appendDigits(std::string_view text, std::string& out) {
    for (char c : text)
        if (isDigit(c))
            out += c;
}

/// True when `text` begins with `prefix`; every text begins with an empty prefix.
inline bool startsWith(std::string_view text, std::string_view prefix) {
    return text.compare(0, prefix.size(), prefix) == 0;
}

inline bool startsWith(std::string_view text, char c) {
    return !text.empty() && text[0] == c;
}

/// The position of the first `c` in `text` from `from` on, or npos. Numbers are a few characters
/// long: a plain loop costs less than the call of std::string::find.
inline std::string_view::size_type indexOf(std::string_view text, char c,
                                           std::string_view::size_type from = 0) {
    for (std::string_view::size_type i = from; i < text.size(); ++i)
        if (text[i] == c)
            return i;
    return std::string_view::npos;
}

inline bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

/// The first character of `text`. An empty text raises the std::out_of_range of std::string::at,
/// which the conversions report as their failure.
inline char firstCharacter(std::string_view text) {
    if (text.empty())
        return std::string().at(0);
    return text[0];
}

/// `text` without leading and trailing white space, as Poco::trim cuts it.
inline std::string_view trimmed(std::string_view text) {
    std::string_view::size_type begin = 0;
    std::string_view::size_type end = text.size();
    while (begin < end && Poco::Ascii::isSpace(text[begin]))
        ++begin;
    while (end > begin && Poco::Ascii::isSpace(text[end - 1]))
        --end;
    return text.substr(begin, end - begin);
}

// The strings of a number too long to be held in the string itself: a conversion hands those it
// no longer needs back with recycleString(), and the next long number the thread writes takes one
// with spareCopyOf(), so that a conversion allocates nothing but the string it returns. Two: the
// typed number's and the canonical number's strings of one conversion.
inline std::array<std::string, 2>& spareStrings() {
    // Initial-exec, as the conversion's own thread state (its first-use guard is not: about 1 % of
    // a conversion, less than a holder that avoids it would cost in lines).
    static thread_local std::array<std::string, 2> kept __attribute__((tls_model("initial-exec")));
    return kept;
}

/// `text`, too long to be held in a string itself, in the larger of the recycled strings.
inline std::string longCopyOf(std::string_view text) {
    std::array<std::string, 2>& kept = spareStrings();
    std::string copy = std::move(kept[0].capacity() < kept[1].capacity() ? kept[1] : kept[0]);
    copy.assign(text);
    return copy;
}

/// `text` in a string of its own: a recycled one when it is long.
inline std::string spareCopyOf(std::string_view text) {
    return text.size() > std::string().capacity() ? longCopyOf(text) : std::string(text);
}

/// Keeps `used` for the next long number, in place of a smaller one.
inline void recycleString(std::string&& used) {
    if (used.capacity() <= std::string().capacity())
        return; // held in the string itself: nothing to keep
    std::string* smallest = &spareStrings()[0];
    for (std::string& kept : spareStrings())
        if (kept.capacity() < smallest->capacity())
            smallest = &kept;
    if (used.capacity() > smallest->capacity())
        *smallest = std::move(used);
}

/// Collects the characters of a result that is usually short, on the stack while they fit, and
/// makes the string at once: growing a std::string one character at a time costs more than the
/// characters of a number themselves.
class TextCollector {
public:
    void push(char c) {
        if (length < sizeof buffer) {
            buffer[length++] = c;
            return;
        }
        if (spill.empty())
            spill.assign(buffer, length);
        spill += c;
    }
    void append(std::string_view text) {
        for (char c : text)
            push(c);
    }
    std::string_view view() const { return spill.empty() ? std::string_view(buffer, length) : spill; }
    /// The characters, in a recycled string when they are many.
    std::string str() const { return spareCopyOf(view()); }

private:
    char buffer[48];
    std::size_t length = 0;
    std::string spill; // everything, once the buffer is full
};

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
inline std::string_view between(std::string_view text, std::string_view::size_type begin,
                                std::string_view::size_type end) {
    if (begin >= text.size() || end <= begin)
        return std::string_view();
    return text.substr(begin, end - begin);
}

} // namespace numbering

#endif
