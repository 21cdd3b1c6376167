#ifndef NUMBERING_SRC_CONFIG_PROPERTYFILES_H
#define NUMBERING_SRC_CONFIG_PROPERTYFILES_H

// Reading of the library's property files, shared by the configuration store, the file-based
// country plans and the Colombian dialing strategy. Every file is read as Poco's
// PropertyFileConfiguration reads it (same exceptions for a missing or unopenable file, same keys
// and values), but from memory in one pass: Poco reads a file one istream::get() at a time, which
// made the plan files of a few thousand lines the bulk of the library's start.

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Logger;

namespace numbering {

/// Calls `set(key, value)` for every property of `text` (the content of a property file), in file
/// order, as Poco's reading of a stream holding it finds them: "#" and "!" comment lines, "=" or
/// ":" after the key, backslash escapes and line continuations, keys and values trimmed. A value
/// may live in a scratch string that the next property reuses.
void parseProperties(std::string_view text,
                     const std::function<void(std::string_view, std::string_view)>& set);

/// The content of a property file, opened as Poco opens it (FileNotFoundException,
/// OpenFileException).
std::string readPropertyFile(const std::string& path);

/// A Poco property file configuration filled as Poco's own reading of the file fills it: the
/// configuration store's files, which it walks with keys().
class PropertyFileReader : public Poco::Util::PropertyFileConfiguration {
public:
    PropertyFileReader() = default;
    explicit PropertyFileReader(const std::string& path) { loadText(readPropertyFile(path)); }

    /// Adds the properties of `text`; a later key replaces an earlier one.
    void loadText(std::string_view text);

protected:
    ~PropertyFileReader() override = default;
};

using PropertyFile = Poco::AutoPtr<PropertyFileReader>;

/// The properties of a file read once and then looked up by a few keys and one numbered list
/// ("AC_0000", "AC_0001", ...), as the country plans read theirs: kept as views into the file's
/// text, in file order, with no map to build. Looked up as a Poco configuration would answer:
/// the last value of a key, references to other properties ("${...}") expanded.
class PropertyTable {
public:
    explicit PropertyTable(const std::string& path);
    PropertyTable(const PropertyTable&) = delete;
    PropertyTable& operator=(const PropertyTable&) = delete;

    /// The value of `key`; Poco::NotFoundException when there is none.
    std::string getString(const std::string& key) const;
    std::string getString(const std::string& key, const std::string& defaultValue) const;

    /// Calls `visit(value)` for the keys keyPrefix + "%04d" from 0000 on, in order, up to 9998.
    /// The first missing key ends the list by throwing Poco::NotFoundException, as getString does
    /// for it (a normal file ends so).
    template <class Visit> void forEachIndexedValue(const std::string& keyPrefix, Visit visit) const;

private:
    struct Entry {
        std::string_view key;
        std::string_view value;
    };
    /// The value of the last entry of `key`, or null.
    const std::string_view* find(std::string_view key) const;
    /// The values of keyPrefix + "%04d", by index (null where the file has none).
    std::vector<const std::string_view*> indexedValues(const std::string& keyPrefix) const;
    static std::string indexedKey(const std::string& keyPrefix, int index);

    std::string text;
    std::deque<std::string> escapedValues; // values that are not a piece of the text as written
    std::vector<Entry> entries;
    /// The file as a Poco configuration, which answers instead when a value refers to another.
    Poco::AutoPtr<PropertyFileReader> expanding;
};

/// Opens `installationFile`; when it cannot be opened (Poco's OpenFileException) or does not exist
/// (FileNotFoundException), logs the matching text at info level and opens `defaultFile` instead.
/// The two files are never merged. A default file that cannot be opened either throws.
PropertyFile openInstallationOrDefault(const std::string& installationFile, const std::string& defaultFile,
                                       Logger* logger, const std::string& textWhenUnopenable,
                                       const std::string& textWhenNotFound);
/// The same for a file read as a table.
std::unique_ptr<PropertyTable> openTableOrDefault(const std::string& installationFile,
                                                  const std::string& defaultFile, Logger* logger,
                                                  const std::string& textWhenUnopenable,
                                                  const std::string& textWhenNotFound);

/// The leading run of decimal digits of `value` ("30 Berlin" gives "30").
std::string leadingDigits(std::string_view value);

template <class Visit>
void PropertyTable::forEachIndexedValue(const std::string& keyPrefix, Visit visit) const {
    if (expanding) {
        for (int index = 0; index <= 9998; ++index)
            visit(expanding->getString(indexedKey(keyPrefix, index)));
        return;
    }
    const std::vector<const std::string_view*> values = indexedValues(keyPrefix);
    for (int index = 0; index <= 9998; ++index) {
        const std::size_t slot = static_cast<std::size_t>(index);
        if (slot >= values.size() || values[slot] == nullptr)
            throw Poco::NotFoundException(indexedKey(keyPrefix, index));
        visit(*values[slot]);
    }
}

} // namespace numbering

#endif
