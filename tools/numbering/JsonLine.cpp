#include "JsonLine.h"

#include <cstdio>

namespace {

/// `text` as a JSON string: quotes, backslashes and control characters escaped. Bytes from 0x80 on
/// are copied: numbers and file names are ASCII or UTF-8.
std::string quoted(const std::string& text) {
    std::string json = "\"";
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (byte < 0x20 || byte == 0x7f) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\u%04x", byte);
            json += escaped;
        } else {
            json += c;
        }
    }
    return json + '"';
}

} // namespace

JsonLine& JsonLine::addJson(const std::string& name, const std::string& json) {
    members += members.empty() ? "{" : ",";
    members += quoted(name) + ":" + json;
    return *this;
}

JsonLine& JsonLine::add(const std::string& name, const std::string& value) {
    return addJson(name, quoted(value));
}

JsonLine& JsonLine::add(const std::string& name, long value) {
    return addJson(name, std::to_string(value));
}
