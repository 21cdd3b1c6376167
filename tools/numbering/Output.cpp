#include "Output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

Output::Output() : interactive(isatty(STDOUT_FILENO) == 1) {
    text.reserve(CAPACITY);
}

void Output::line(std::initializer_list<std::string_view> fields) {
    const char* separator = "";
    for (std::string_view field : fields) {
        text += separator;
        text += field;
        separator = "\t";
    }
    text += '\n';
    if (interactive || text.size() >= CAPACITY)
        flush();
}

void Output::write(std::string_view lines) {
    text += lines;
    if (interactive || text.size() >= CAPACITY)
        flush();
}

void Output::flush() {
    // stdio may hold a short text back: only the flush tells whether it was written.
    if ((!text.empty() && std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) ||
        std::fflush(stdout) != 0) {
        std::fprintf(stderr, "numbering: cannot write the results: %s\n", std::strerror(errno));
        std::_Exit(2); // at once: batch workers may still be converting
    }
    text.clear();
}
