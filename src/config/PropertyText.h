#ifndef NUMBERING_SRC_CONFIG_PROPERTYTEXT_H
#define NUMBERING_SRC_CONFIG_PROPERTYTEXT_H

// The text of a property file cut into keys and values exactly as Poco's PropertyFileConfiguration
// cuts it, but on the bytes in memory: Poco reads through one istream::get() per character, which
// made its parse of the plan files most of the library's start.

#include "common/NumberText.h"

#include <string>
#include <string_view>

namespace numbering {

/// Calls `keep(key, value)` (two std::string_view, valid for the call only) for every property of
/// `text`, in the order of the file, with the key and value Poco's load hands to setRaw():
/// whitespace (and so blank lines) before a key is skipped; "#" or "!" there opens a comment up to
/// the next "\r" or "\n"; the key runs up to "=", ":", "\r", "\n" or the end; after "=" or ":" the
/// value runs up to "\r", "\n", a NUL byte or the end, where "\t", "\r", "\n" and "\f" escape those
/// characters, a backslash before a line end ("\r\n" as one) goes on over the next line, and a
/// backslash before any other character keeps that character (a NUL byte still ends the value).
/// Key and value are trimmed of ASCII whitespace.
template <class Keep> void readPropertyText(std::string_view text, Keep keep) {
    // What stops the scan of a key or of a value, by byte: one table look-up a character.
    enum : unsigned char { ENDS_KEY = 1, STOPS_VALUE = 2 };
    static const struct Stops {
        unsigned char of[256] = {};
        Stops() {
            for (unsigned char c : {'=', ':', '\r', '\n'})
                of[c] |= ENDS_KEY;
            for (unsigned char c : {'\\', '\r', '\n', '\0'})
                of[c] |= STOPS_VALUE;
        }
    } stops;
    auto stopsAt = [](char c, unsigned char kind) {
        return (stops.of[static_cast<unsigned char>(c)] & kind) != 0;
    };
    auto endsValue = [](char c) { return c == '\n' || c == '\r' || c == '\0'; };
    const char* at = text.data();
    const char* const end = at + text.size();
    std::string escaped; // a value with a backslash, as the escapes read
    while (at != end) {
        const char first = *at;
        if (Poco::Ascii::isSpace(first)) {
            ++at;
            continue;
        }
        if (first == '#' || first == '!') {
            while (at != end && *at != '\n' && *at != '\r')
                ++at;
            continue;
        }
        const char* const keyBegin = at;
        while (at != end && !stopsAt(*at, ENDS_KEY))
            ++at;
        const std::string_view key(keyBegin, static_cast<std::size_t>(at - keyBegin));
        if (at == end || (*at != '=' && *at != ':')) {
            keep(trimmed(key), std::string_view());
            continue; // a line end left is whitespace to the next key
        }
        const char* const valueBegin = ++at;
        while (at != end && !stopsAt(*at, STOPS_VALUE))
            ++at;
        if (at == end || *at != '\\') {
            const std::string_view value(valueBegin, static_cast<std::size_t>(at - valueBegin));
            if (at != end)
                ++at;
            keep(trimmed(key), trimmed(value));
            continue;
        }
        escaped.assign(valueBegin, at);
        while (at != end) {
            char c = *at++;
            if (c == '\\') {
                if (at == end)
                    break;
                c = *at++;
                if (c == '\r' || c == '\n') {
                    if (c == '\r' && at != end && *at == '\n')
                        ++at;
                    continue;
                }
                c = c == 't' ? '\t' : c == 'r' ? '\r' : c == 'n' ? '\n' : c == 'f' ? '\f' : c;
                if (c == '\0')
                    break;
            } else if (endsValue(c)) {
                break;
            }
            escaped += c;
        }
        keep(trimmed(key), trimmed(escaped));
    }
}

} // namespace numbering

#endif
