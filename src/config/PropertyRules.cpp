#include "PropertyRules.h"

#include "common/NumberText.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/String.h>

#include <algorithm>
#include <cstdlib>

namespace numbering {

std::vector<KeyLine> keyLines(std::string_view text) {
    std::vector<KeyLine> lines;
    int number = 0;
    bool continued = false;
    // One piece of a line up to a carriage return or a NUL byte, which the reader also ends it at.
    auto piece = [&](std::string_view part) {
        const std::string_view content = trimmed(part);
        const bool setsKey = !content.empty() && content[0] != '#' && content[0] != '!';
        if (setsKey && !continued) {
            const std::string_view key = trimmed(content.substr(0, content.find_first_of("=:")));
            if (!key.empty())
                lines.push_back({std::string(key), number});
        }
        std::size_t backslashes = 0;
        while (backslashes < part.size() && part[part.size() - 1 - backslashes] == '\\')
            ++backslashes;
        continued = setsKey && backslashes % 2 == 1;
    };
    for (std::string_view::size_type start = 0; start < text.size();) {
        const std::string_view::size_type next = std::min(text.find('\n', start), text.size());
        std::string_view line = text.substr(start, next - start);
        start = next + 1;
        ++number;
        if (!line.empty() && line.back() == '\r') // "\r\n" is one line end
            line.remove_suffix(1);
        for (std::string_view::size_type end;
             (end = line.find_first_of(std::string_view("\r\0", 2))) != std::string_view::npos;
             line.remove_prefix(end + 1))
            piece(line.substr(0, end));
        piece(line);
    }
    return lines;
}

References readReferences(std::string_view value) {
    References read;
    for (std::string_view::size_type i = 0; i < value.size();) {
        if (value.compare(i, 2, "${") != 0) {
            ++read.textLength;
            ++i;
            continue;
        }
        const std::string_view::size_type close = value.find('}', i + 2);
        read.names.emplace_back(
            value.substr(i + 2, close == std::string_view::npos ? std::string_view::npos : close - i - 2));
        i = close == std::string_view::npos ? value.size() : close + 1;
    }
    return read;
}

DialingRuleFields splitDialingRule(const std::string& value) {
    // As Poco's StringTokenizer(value, ":") cuts it, without its copy of every character: an empty
    // value has no field, any other one field more than it has ":".
    DialingRuleFields fields;
    if (value.empty())
        return fields;
    for (std::string::size_type begin = 0;; ++fields.count) {
        const std::string::size_type colon = value.find(':', begin);
        if (fields.count < fields.field.size())
            fields.field[fields.count].assign(value, begin, colon - begin);
        if (colon == std::string::npos)
            break;
        begin = colon + 1;
    }
    ++fields.count;
    return fields;
}

MaskKey readMaskKey(const std::string& key) {
    MaskKey read;
    // "Mask_" may stand anywhere in the key, yet the calling code is always cut from the sixth
    // character up to the next "_".
    if (key.find("Mask_") == std::string::npos) {
        read.skipped = MaskKey::Skipped::NoMaskPrefix;
        return read;
    }
    const std::string::size_type end = key.find('_', 5);
    if (end == std::string::npos) {
        read.skipped = MaskKey::Skipped::NoSeparator;
        return read;
    }
    read.callingCode = key.substr(5, end - 5);
    if (read.callingCode.empty() || read.callingCode.size() > 3)
        read.skipped = MaskKey::Skipped::CallingCodeLength;
    return read;
}

std::optional<std::string> readActivationKey(const std::string& key) {
    if (!startsWith(key, "cnp_") || key.size() < 5 || key.size() > 7)
        return std::nullopt;
    return key.substr(4);
}

Switch readSwitch(const std::string& value) {
    if (value.empty())
        return Switch::Empty;
    const std::string lower = Poco::toLower(value);
    if (lower == "true" || lower == "on" || lower == "1")
        return Switch::On;
    if (lower == "false" || lower == "off" || lower == "0")
        return Switch::Off;
    return Switch::Invalid;
}

bool specificFormatActive(const std::string& callingCode, std::optional<bool> firstSwitch) {
    if (callingCode.empty())
        return true;
    const long slot = std::strtol(callingCode.c_str(), nullptr, 10);
    return slot != 0 || !firstSwitch || *firstSwitch;
}

bool translateOn(const std::string& value) {
    return value == "1";
}

std::string numberedKey(const std::string& prefix, int index) {
    std::string key = prefix + "0000";
    for (std::size_t i = key.size(); index > 0; index /= 10)
        key[--i] = static_cast<char>('0' + index % 10);
    return key;
}

int numberedIndex(std::string_view prefix, std::string_view key) {
    if (key.size() != prefix.size() + 4 || key.substr(0, prefix.size()) != prefix)
        return -1;
    int index = 0;
    for (char c : key.substr(prefix.size())) {
        if (c < '0' || c > '9')
            return -1;
        index = index * 10 + (c - '0');
    }
    return index;
}

std::string leadingDigits(std::string_view value) {
    std::string_view::size_type end = 0;
    while (end < value.size() && value[end] >= '0' && value[end] <= '9')
        ++end;
    return std::string(value.substr(0, end));
}

std::size_t longestAreaCode(const std::string& callingCode) {
    // "+" calling code " (" area ") " and one subscriber digit, one character short of the limit.
    const std::size_t around = 1 + callingCode.size() + 2 + 2 + 1;
    const std::size_t limit = static_cast<std::size_t>(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH) - 1;
    return limit > around ? limit - around : 0;
}

} // namespace numbering
