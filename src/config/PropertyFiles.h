#ifndef NUMBERING_SRC_CONFIG_PROPERTYFILES_H
#define NUMBERING_SRC_CONFIG_PROPERTYFILES_H

// Reading of the library's property files, shared by the configuration store, the file-based
// country plans, the Colombian dialing strategy and the configuration check: one way to open a
// file, and Poco's PropertyFileConfiguration to read it.

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

/// The content of the property file at `path`. Only a regular file is read: a missing one raises
/// Poco::FileNotFoundException, any other that cannot be read (a directory, a FIFO, a device, no
/// read permission, a symbolic link loop) Poco::OpenFileException with the reason as its message.
/// A FIFO is never waited on.
std::string readPropertyFile(const std::string& path);

/// A property file read by Poco's PropertyFileConfiguration, which keeps the properties in file
/// order in one flat buffer instead of a map of strings: the plan files hold thousands of
/// properties of which a plan looks up a handful by name and walks one numbered list once. It
/// answers as Poco's own configuration does: getString() gives the last value of a key with its
/// references ("${...}") expanded, keys() the root keys in ascending order.
class PropertyFile : public Poco::Util::PropertyFileConfiguration {
public:
    /// The properties of the file at `path` (readPropertyFile()'s exceptions).
    static Poco::AutoPtr<PropertyFile> read(const std::string& path);
    /// The properties of `text`, the content of a property file.
    static Poco::AutoPtr<PropertyFile> parse(std::string_view text);

    /// Calls `visit(value)` for the keys keyPrefix + "%04d" from 0000 on, in order, up to 9998, each
    /// value as getString() answers it. The first missing key ends the list by throwing
    /// Poco::NotFoundException, as getString() does for it (a normal file ends so).
    template <class Visit> void forEachIndexedValue(const std::string& keyPrefix, Visit visit) const;

protected:
    ~PropertyFile() override;

    bool getRaw(const std::string& key, std::string& value) const override;
    void setRaw(const std::string& key, const std::string& value) override;
    void enumerate(const std::string& key, Keys& range) const override;

private:
    explicit PropertyFile(std::string_view text);

    struct Entry {
        std::uint32_t keyBegin, keyLength, valueBegin, valueLength; // in `buffer`
    };
    std::string_view keyOf(const Entry& entry) const;
    std::string_view valueOf(const Entry& entry) const;
    /// The last entry of `key`, or null.
    const Entry* find(std::string_view key) const;
    /// Fills byKey.
    void indexByKey() const;
    /// For each index of keyPrefix + "%04d", the last entry of that key (null where there is none).
    std::vector<const Entry*> indexedEntries(const std::string& keyPrefix) const;
    /// The value of `entry`, expanded into `expanded` when it refers to other properties.
    std::string_view valueAsRead(const Entry& entry, std::string& expanded) const;
    static std::string indexedKey(const std::string& keyPrefix, int index);

    std::string buffer;         // every key and value, one after the other
    std::vector<Entry> entries; // in file order
    /// The last entry of each key, in ascending key order: made by the first walk of the keys (the
    /// store's files) or the first reference to expand, not for a plan file that is looked up by a
    /// few keys only. A file is read by one thread at a time.
    mutable std::vector<std::uint32_t> byKey;
    mutable bool indexed = false;
};

/// Reads `installationFile`; when it cannot be opened (Poco's OpenFileException) or does not exist
/// (FileNotFoundException), logs the matching text at info level and reads `defaultFile` instead.
/// The two files are never merged. A default file that cannot be read either throws.
Poco::AutoPtr<PropertyFile> readInstallationOrDefault(const std::string& installationFile,
                                                      const std::string& defaultFile, Logger* logger,
                                                      const std::string& textWhenUnopenable,
                                                      const std::string& textWhenNotFound);

/// The leading run of decimal digits of `value` ("30 Berlin" gives "30").
std::string leadingDigits(std::string_view value);

template <class Visit>
void PropertyFile::forEachIndexedValue(const std::string& keyPrefix, Visit visit) const {
    const std::vector<const Entry*> values = indexedEntries(keyPrefix);
    std::string expanded;
    for (int index = 0; index <= 9998; ++index) {
        const std::size_t slot = static_cast<std::size_t>(index);
        if (slot >= values.size() || values[slot] == nullptr)
            throw Poco::NotFoundException(indexedKey(keyPrefix, index));
        visit(valueAsRead(*values[slot], expanded));
    }
}

} // namespace numbering

#endif
