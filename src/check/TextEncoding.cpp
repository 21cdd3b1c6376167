#include "TextEncoding.h"

#include <algorithm>

namespace numbering {
namespace configcheck {

namespace {

/// The encoding of a text whose NUL bytes say it is UTF-16 or UTF-32, with or without a
/// byte-order mark, or "".
std::string wideEncoding(std::string_view text) {
    using namespace std::string_view_literals;
    struct Mark {
        std::string_view bytes;
        const char* encoding;
    };
    // UTF-32 first: its little-endian mark begins with the UTF-16 one.
    static const Mark MARKS[] = {{"\xFF\xFE\0\0"sv, "UTF-32 (little-endian)"},
                                 {"\0\0\xFE\xFF"sv, "UTF-32 (big-endian)"},
                                 {"\xFF\xFE"sv, "UTF-16 (little-endian)"},
                                 {"\xFE\xFF"sv, "UTF-16 (big-endian)"}};
    for (const Mark& mark : MARKS)
        if (text.substr(0, mark.bytes.size()) == mark.bytes)
            return mark.encoding;
    // Without a mark: Latin text in UTF-16 has a NUL byte in one half of most characters, and
    // never in the other.
    const std::size_t characters = std::min<std::size_t>(text.size() / 2, 256);
    std::size_t nulFirst = 0, nulSecond = 0;
    for (std::size_t i = 0; i < characters; ++i) {
        nulFirst += text[2 * i] == '\0';
        nulSecond += text[2 * i + 1] == '\0';
    }
    if (characters < 2)
        return std::string();
    if (nulFirst == 0 && nulSecond * 4 >= characters * 3)
        return "UTF-16 (little-endian, without a byte-order mark)";
    if (nulSecond == 0 && nulFirst * 4 >= characters * 3)
        return "UTF-16 (big-endian, without a byte-order mark)";
    return std::string();
}

} // namespace

std::string encodingProblem(std::string_view text) {
    const std::string wide = wideEncoding(text);
    if (!wide.empty())
        return "the file is in " + wide +
               ", not plain text: the library reads a NUL byte in every character as a line end and "
               "finds none of its keys (save it as plain ASCII text)";
    if (text.substr(0, 3) == "\xEF\xBB\xBF")
        return "the file begins with a UTF-8 byte-order mark: the library reads it as part of the "
               "first key, which is then never found (save it as plain ASCII text, without the mark)";
    return std::string();
}

} // namespace configcheck
} // namespace numbering
