#ifndef NUMBERING_SRC_COMMON_CANONICALNUMBER_H
#define NUMBERING_SRC_COMMON_CANONICALNUMBER_H

// A number in canonical form, "+33 (1) 23456789": the calling code, the area code or national
// prefix in parentheses, the subscriber number. Read once into views of its text, which the
// facade's operations, the display masks, the GSM form and the dialing share; written by one
// writer, which the country plans use as well. The operations have always disagreed on odd text (a
// "(" in first position, text before the calling code, separators in the subscriber number) and
// each keeps its answer: every reading is a named function. No configuration is consulted; a
// missing part is empty.

#include "common/NumberText.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace numbering {

struct CanonicalNumber {
    using size_type = std::string_view::size_type;

    std::string_view country;    // the calling code
    std::string_view area;       // the area code or the national prefix
    std::string_view subscriber; // the rest, separators included

    /// The extract operations' reading: the digits right after a leading "+"; what stands between
    /// the first "(" and the first ")" (a "(" in first position opens nothing); everything behind
    /// the first ")", else behind the first blank.
    static CanonicalNumber read(std::string_view text) {
        CanonicalNumber parts;
        if (startsWith(text, '+')) {
            size_type i = 1;
            parts.country = digitRun(text, i);
        }
        const size_type open = indexOf(text, '(');
        const size_type close = indexOf(text, ')');
        if (open != std::string_view::npos && open != 0 && close != std::string_view::npos &&
            open + 1 < close)
            parts.area = text.substr(open + 1, close - open - 1);
        const size_type start = close != std::string_view::npos ? close : indexOf(text, ' ');
        if (start != std::string_view::npos)
            parts.subscriber = text.substr(start + 1);
        return parts;
    }

    /// Whether `text` has both parentheses: the display masks and the GSM form leave any other text
    /// as it is.
    static bool hasParentheses(std::string_view text) {
        return indexOf(text, '(') != std::string_view::npos && indexOf(text, ')') != std::string_view::npos;
    }

    /// The reading of the display masks and the GSM form, on a text that has both parentheses: the
    /// text from the second character to the first blank; what stands between the first "(" and the
    /// ")" after it; everything from the second character behind that ")" (the blank is passed
    /// over).
    static CanonicalNumber readAtSeparators(std::string_view text) {
        CanonicalNumber parts;
        parts.country = between(text, 1, indexOf(text, ' '));
        const size_type open = indexOf(text, '(');
        if (open == std::string_view::npos)
            return parts;
        const size_type close = indexOf(text, ')', open);
        parts.area = between(text, open + 1, close);
        if (close != std::string_view::npos && close + 2 < text.size())
            parts.subscriber = text.substr(close + 2);
        return parts;
    }

    /// The dialing's reading: within the first `longest` characters, the first run of digits after
    /// the first character; the next run of digits, when the text has both parentheses anywhere;
    /// everything after that.
    static CanonicalNumber readDigitRuns(std::string_view whole, size_type longest) {
        const std::string_view text = whole.substr(0, std::min(longest, whole.size()));
        CanonicalNumber parts;
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
        if (hasParentheses(whole)) {
            parts.area = digitRun(text, i);
            while (i < text.size() && !isDigit(text[i]))
                ++i;
        }
        if (i < text.size())
            parts.subscriber = text.substr(i);
        return parts;
    }

    /// Appends the digits of the subscriber number to `out`; its separators vanish.
    void appendSubscriberDigits(std::string& out) const { appendDigits(subscriber, out); }

    /// The one writer of the canonical form: "+" lead " (" area ") " subscriber. `lead` is the
    /// calling code and whatever the country writes before its area code ("54 9" for an Argentine
    /// mobile). An empty area still has its parentheses.
    static std::string write(std::string_view lead, std::string_view area, std::string_view subscriber) {
        return joined({"+", lead, " (", area, ") ", subscriber});
    }

    /// The canonical form of a number without area code or national prefix: "+" lead " "
    /// subscriber ("+47 12345678", "+61 1300 123456").
    static std::string writeWithoutArea(std::string_view lead, std::string_view subscriber) {
        return joined({"+", lead, " ", subscriber});
    }

private:
    /// The pieces one after the other, in one string.
    static std::string joined(std::initializer_list<std::string_view> pieces) {
        TextCollector text;
        for (std::string_view piece : pieces)
            text.append(piece);
        return text.str();
    }

    /// The run of digits of `text` that begins at `i`; `i` moves past it.
    static std::string_view digitRun(std::string_view text, size_type& i) {
        const size_type begin = i;
        while (i < text.size() && isDigit(text[i]))
            ++i;
        return text.substr(begin, i - begin);
    }
};

} // namespace numbering

#endif
