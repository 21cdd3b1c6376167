#include "PropertyFiles.h"

#include "numbering/Logger.h"

#include <Poco/Ascii.h>
#include <Poco/FileStream.h>

namespace numbering {

namespace {

bool isSpace(char c) {
    return Poco::Ascii::isSpace(static_cast<unsigned char>(c));
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

bool endsValue(char c) {
    return c == '\\' || c == '\n' || c == '\r' || c == '\0';
}

/// Reads the value that starts at `next`, up to its end (a line end or a NUL character, both
/// consumed, or the end of the text), into `value`, and returns where reading goes on. A value
/// without backslash stays a view into the text; one with escapes is resolved into `scratch`:
/// "\t", "\r", "\n", "\f" stand for their control characters, any other escaped character for
/// itself, a backslash before a line end continues the value on the next line, and a backslash at
/// the very end of the text ends it.
const char* readValue(const char* next, const char* end, std::string& scratch, std::string_view& value) {
    const char* run = next;
    while (next != end && !endsValue(*next))
        ++next;
    if (next == end || *next != '\\') {
        value = std::string_view(run, static_cast<std::size_t>(next - run));
        return next == end ? end : next + 1;
    }
    scratch.assign(run, static_cast<std::size_t>(next - run));
    value = scratch;
    while (next != end) {
        run = next;
        while (next != end && !endsValue(*next))
            ++next;
        scratch.append(run, static_cast<std::size_t>(next - run));
        if (next == end)
            break;
        if (*next++ != '\\')
            break; // a line end or a NUL character
        if (next == end)
            break;
        const char escaped = *next++;
        switch (escaped) {
        case 't':
            scratch += '\t';
            break;
        case 'r':
            scratch += '\r';
            break;
        case 'n':
            scratch += '\n';
            break;
        case 'f':
            scratch += '\f';
            break;
        case '\r':
            if (next != end && *next == '\n')
                ++next;
            break;
        case '\n':
            break;
        case '\0':
            value = scratch;
            return next;
        default:
            scratch += escaped;
        }
    }
    value = scratch;
    return next;
}

} // namespace

// Poco reads a line so: white space skipped; "#" or "!" comments out the rest of the line; else
// the key runs up to "=", ":" or the line end, and after "=" or ":" the value follows (readValue);
// both are trimmed.
void parseProperties(std::string_view text,
                     const std::function<void(std::string_view, std::string_view)>& set) {
    const char* next = text.data();
    const char* const end = next + text.size();
    std::string scratch;
    while (next != end) {
        while (next != end && isSpace(*next))
            ++next;
        if (next == end)
            break;
        if (*next == '#' || *next == '!') {
            while (next != end && *next != '\n' && *next != '\r')
                ++next;
            if (next != end)
                ++next;
            continue;
        }
        const char* keyEnd = next;
        while (keyEnd != end && *keyEnd != '=' && *keyEnd != ':' && *keyEnd != '\r' && *keyEnd != '\n')
            ++keyEnd;
        const std::string_view key = trimmed(std::string_view(next, static_cast<std::size_t>(keyEnd - next)));
        next = keyEnd;
        std::string_view value;
        if (next != end) {
            const char terminator = *next++;
            if (terminator == '=' || terminator == ':')
                next = readValue(next, end, scratch, value);
        }
        set(key, trimmed(value));
    }
}

std::string readPropertyFile(const std::string& path) {
    // Opened as Poco opens it: a missing file and an unopenable one raise the same exceptions.
    Poco::FileInputStream stream(path);
    if (!stream.good())
        throw Poco::OpenFileException(path);
    std::string text;
    char block[16384];
    while (stream.read(block, sizeof block) || stream.gcount() > 0)
        text.append(block, static_cast<std::size_t>(stream.gcount()));
    return text;
}

void PropertyFileReader::loadText(std::string_view text) {
    parseProperties(text, [this](std::string_view key, std::string_view value) {
        setRaw(std::string(key), std::string(value));
    });
}

PropertyTable::PropertyTable(const std::string& path) : text(readPropertyFile(path)) {
    bool refersToProperties = false;
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    parseProperties(text, [&](std::string_view key, std::string_view value) {
        refersToProperties = refersToProperties || value.find("${") != std::string_view::npos;
        // A value resolved from escapes lives in the parser's scratch string: it is kept apart.
        if (!value.empty() && (value.data() < begin || value.data() >= end))
            value = escapedValues.emplace_back(value);
        entries.push_back({key, value});
    });
    if (refersToProperties) {
        expanding = new PropertyFileReader;
        expanding->loadText(text);
    }
}

const std::string_view* PropertyTable::find(std::string_view key) const {
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        if (entry->key == key)
            return &entry->value;
    return nullptr;
}

std::string PropertyTable::getString(const std::string& key) const {
    if (expanding)
        return expanding->getString(key);
    const std::string_view* value = find(key);
    if (value == nullptr)
        throw Poco::NotFoundException(key);
    return std::string(*value);
}

std::string PropertyTable::getString(const std::string& key, const std::string& defaultValue) const {
    if (expanding)
        return expanding->getString(key, defaultValue);
    const std::string_view* value = find(key);
    return value == nullptr ? defaultValue : std::string(*value);
}

std::string PropertyTable::indexedKey(const std::string& keyPrefix, int index) {
    std::string key = keyPrefix + "0000";
    for (std::size_t i = key.size(); index > 0; index /= 10)
        key[--i] = static_cast<char>('0' + index % 10);
    return key;
}

std::vector<const std::string_view*> PropertyTable::indexedValues(const std::string& keyPrefix) const {
    std::vector<const std::string_view*> values;
    for (const Entry& entry : entries) {
        if (entry.key.size() != keyPrefix.size() + 4 ||
            entry.key.compare(0, keyPrefix.size(), keyPrefix) != 0)
            continue;
        int index = 0;
        for (std::size_t i = keyPrefix.size(); i < entry.key.size() && index >= 0; ++i)
            index = entry.key[i] >= '0' && entry.key[i] <= '9' ? index * 10 + (entry.key[i] - '0') : -1;
        if (index < 0)
            continue;
        const std::size_t slot = static_cast<std::size_t>(index);
        if (slot >= values.size())
            values.resize(slot + 1, nullptr);
        values[slot] = &entry.value; // a later line of the same key replaces an earlier one
    }
    return values;
}

namespace {

/// `open(installationFile)`, or `open(defaultFile)` when Poco cannot open the installation file or
/// does not find it, with the matching info line.
template <class Open>
auto openEither(const std::string& installationFile, const std::string& defaultFile, Logger* logger,
                const std::string& textWhenUnopenable, const std::string& textWhenNotFound, Open open) {
    try {
        return open(installationFile);
    } catch (const Poco::OpenFileException&) {
        logger->info(textWhenUnopenable);
    } catch (const Poco::FileNotFoundException&) {
        logger->info(textWhenNotFound);
    }
    return open(defaultFile);
}

} // namespace

PropertyFile openInstallationOrDefault(const std::string& installationFile, const std::string& defaultFile,
                                       Logger* logger, const std::string& textWhenUnopenable,
                                       const std::string& textWhenNotFound) {
    return openEither(installationFile, defaultFile, logger, textWhenUnopenable, textWhenNotFound,
                      [](const std::string& path) { return PropertyFile(new PropertyFileReader(path)); });
}

std::unique_ptr<PropertyTable> openTableOrDefault(const std::string& installationFile,
                                                  const std::string& defaultFile, Logger* logger,
                                                  const std::string& textWhenUnopenable,
                                                  const std::string& textWhenNotFound) {
    return openEither(installationFile, defaultFile, logger, textWhenUnopenable, textWhenNotFound,
                      [](const std::string& path) { return std::make_unique<PropertyTable>(path); });
}

std::string leadingDigits(std::string_view value) {
    std::string_view::size_type end = 0;
    while (end < value.size() && value[end] >= '0' && value[end] <= '9')
        ++end;
    return std::string(value.substr(0, end));
}

} // namespace numbering
