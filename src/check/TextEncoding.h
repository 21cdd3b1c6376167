#ifndef NUMBERING_SRC_CHECK_TEXTENCODING_H
#define NUMBERING_SRC_CHECK_TEXTENCODING_H

#include <string>
#include <string_view>

namespace numbering {
namespace configcheck {

/// What is wrong with the encoding of a property file's text, for the installer, or "" when it is
/// plain text. The reader takes bytes as characters: a text editor's UTF-16 or UTF-32 puts a NUL
/// byte into every character, which the reader takes for a line end, and a byte-order mark becomes
/// part of the first key.
std::string encodingProblem(std::string_view text);

} // namespace configcheck
} // namespace numbering

#endif
