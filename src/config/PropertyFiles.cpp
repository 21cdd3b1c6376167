#include "PropertyFiles.h"

#include "numbering/Logger.h"

#include <Poco/Error.h>
#include <Poco/MemoryStream.h>
#include <Poco/String.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace numbering {

namespace {

/// Closes a descriptor when reading ends, however it ends.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : descriptor(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(descriptor); }
    int get() const { return descriptor; }

private:
    int descriptor;
};

[[noreturn]] void cannotRead(int error) {
    throw Poco::OpenFileException(Poco::toLower(Poco::Error::getMessage(error)));
}

} // namespace

std::string readPropertyFile(const std::string& path) {
    // Without O_NONBLOCK, opening a FIFO would wait for a writer; the file type is then taken from
    // the opened descriptor, so that the file read is the file looked at.
    const int opened = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0) {
        if (errno == ENOENT)
            throw Poco::FileNotFoundException(path);
        cannotRead(errno);
    }
    const Descriptor file(opened);
    struct stat status;
    if (::fstat(file.get(), &status) != 0)
        cannotRead(errno);
    if (!S_ISREG(status.st_mode))
        throw Poco::OpenFileException(S_ISDIR(status.st_mode) ? "it is a directory"
                                                              : "it is not a regular file");
    // One byte more than the file's size, so that the read that finds its end needs no more room.
    std::string text(static_cast<std::size_t>(status.st_size) + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        if (length == text.size())
            text.resize(2 * text.size()); // the file grew while it was read
        const ssize_t got = ::read(file.get(), &text[length], text.size() - length);
        if (got == 0)
            break;
        if (got < 0) {
            if (errno == EINTR)
                continue;
            cannotRead(errno);
        }
        length += static_cast<std::size_t>(got);
    }
    text.resize(length);
    return text;
}

Poco::AutoPtr<PropertyFile> PropertyFile::read(const std::string& path) {
    return parse(readPropertyFile(path));
}

Poco::AutoPtr<PropertyFile> PropertyFile::parse(std::string_view text) {
    return Poco::AutoPtr<PropertyFile>(new PropertyFile(text));
}

PropertyFile::PropertyFile(std::string_view text) {
    // A key or a value is never longer than its line: the buffer holds them all without growing.
    buffer.reserve(text.size());
    entries.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
    Poco::MemoryInputStream stream(text.data(), static_cast<std::streamsize>(text.size()));
    load(stream);
}

PropertyFile::~PropertyFile() = default;

void PropertyFile::setRaw(const std::string& key, const std::string& value) {
    const auto at = [this] { return static_cast<std::uint32_t>(buffer.size()); };
    Entry entry;
    entry.keyBegin = at();
    buffer += key;
    entry.keyLength = static_cast<std::uint32_t>(key.size());
    entry.valueBegin = at();
    buffer += value;
    entry.valueLength = static_cast<std::uint32_t>(value.size());
    entries.push_back(entry);
}

std::string_view PropertyFile::keyOf(const Entry& entry) const {
    return std::string_view(buffer).substr(entry.keyBegin, entry.keyLength);
}

std::string_view PropertyFile::valueOf(const Entry& entry) const {
    return std::string_view(buffer).substr(entry.valueBegin, entry.valueLength);
}

const PropertyFile::Entry* PropertyFile::find(std::string_view key) const {
    if (indexed) {
        const auto found = std::lower_bound(
            byKey.begin(), byKey.end(), key,
            [this](std::uint32_t entry, std::string_view wanted) { return keyOf(entries[entry]) < wanted; });
        return found != byKey.end() && keyOf(entries[*found]) == key ? &entries[*found] : nullptr;
    }
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
        if (keyOf(*entry) == key)
            return &*entry;
    return nullptr;
}

void PropertyFile::indexByKey() const {
    byKey.resize(entries.size());
    for (std::size_t entry = 0; entry < entries.size(); ++entry)
        byKey[entry] = static_cast<std::uint32_t>(entry);
    // Of the entries of one key, the last comes first and stays.
    std::sort(byKey.begin(), byKey.end(), [this](std::uint32_t left, std::uint32_t right) {
        const int order = keyOf(entries[left]).compare(keyOf(entries[right]));
        return order < 0 || (order == 0 && left > right);
    });
    byKey.erase(std::unique(byKey.begin(), byKey.end(),
                            [this](std::uint32_t left, std::uint32_t right) {
                                return keyOf(entries[left]) == keyOf(entries[right]);
                            }),
                byKey.end());
    indexed = true;
}

bool PropertyFile::getRaw(const std::string& key, std::string& value) const {
    const Entry* entry = find(key);
    if (entry == nullptr)
        return false;
    value.assign(valueOf(*entry));
    return true;
}

void PropertyFile::enumerate(const std::string& key, Keys& range) const {
    // A walk of the keys looks each of them up next: from here on, keys are found by the index.
    if (!indexed)
        indexByKey();
    // As Poco's map answers: every key below `key` in ascending order, cut after its next
    // component, each once.
    const std::string prefix = key.empty() ? key : key + '.';
    std::set<std::string_view> listed;
    for (std::uint32_t entry : byKey) {
        const std::string_view full = keyOf(entries[entry]);
        if (full.compare(0, prefix.size(), prefix) != 0)
            continue;
        const std::string_view below = full.substr(prefix.size());
        const std::string_view component = below.substr(0, below.find('.'));
        if (listed.insert(component).second)
            range.emplace_back(component);
    }
}

std::string PropertyFile::indexedKey(const std::string& keyPrefix, int index) {
    std::string key = keyPrefix + "0000";
    for (std::size_t i = key.size(); index > 0; index /= 10)
        key[--i] = static_cast<char>('0' + index % 10);
    return key;
}

std::vector<const PropertyFile::Entry*> PropertyFile::indexedEntries(const std::string& keyPrefix) const {
    std::vector<const Entry*> values;
    for (const Entry& entry : entries) {
        const std::string_view key = keyOf(entry);
        if (key.size() != keyPrefix.size() + 4 || key.compare(0, keyPrefix.size(), keyPrefix) != 0)
            continue;
        std::size_t index = 0;
        bool digits = true;
        for (char c : key.substr(keyPrefix.size())) {
            digits = digits && c >= '0' && c <= '9';
            index = index * 10 + static_cast<std::size_t>(c - '0');
        }
        if (!digits)
            continue;
        if (index >= values.size())
            values.resize(index + 1, nullptr);
        values[index] = &entry; // a later line of the same key replaces an earlier one
    }
    return values;
}

std::string_view PropertyFile::valueAsRead(const Entry& entry, std::string& expanded) const {
    const std::string_view value = valueOf(entry);
    if (value.find("${") == std::string_view::npos)
        return value;
    if (!indexed)
        indexByKey(); // each reference is a look-up
    expanded = getString(std::string(keyOf(entry)));
    return expanded;
}

Poco::AutoPtr<PropertyFile> readInstallationOrDefault(const std::string& installationFile,
                                                      const std::string& defaultFile, Logger* logger,
                                                      const std::string& textWhenUnopenable,
                                                      const std::string& textWhenNotFound) {
    try {
        return PropertyFile::read(installationFile);
    } catch (const Poco::OpenFileException&) {
        logger->info(textWhenUnopenable);
    } catch (const Poco::FileNotFoundException&) {
        logger->info(textWhenNotFound);
    }
    return PropertyFile::read(defaultFile);
}

std::string leadingDigits(std::string_view value) {
    std::string_view::size_type end = 0;
    while (end < value.size() && value[end] >= '0' && value[end] <= '9')
        ++end;
    return std::string(value.substr(0, end));
}

} // namespace numbering
