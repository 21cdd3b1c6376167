#ifndef NUMBERING_TOOLS_OUTPUT_H
#define NUMBERING_TOOLS_OUTPUT_H

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

/// Standard output in large blocks, written when full and at the end; line by line only to a
/// terminal, where someone waits for each answer.
class Output {
public:
    Output();

    /// Appends one line: the fields separated by tabs.
    void line(std::initializer_list<std::string_view> fields);

    /// Appends text made of whole lines.
    void write(std::string_view lines);

    /// Writes what is held; a failed write (a full disk, a closed pipe) ends the tool.
    void flush();

private:
    static constexpr std::size_t CAPACITY = 1 << 16;
    const bool interactive;
    std::string text;
};

#endif
