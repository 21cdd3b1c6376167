#ifndef NUMBERING_SRC_CONFIG_PROPERTYFILES_H
#define NUMBERING_SRC_CONFIG_PROPERTYFILES_H

// Reading of the library's property files, shared by the configuration store, the file-based
// country plans, the Colombian dialing strategy and the configuration check: one way to open a
// file, and Poco's PropertyFileConfiguration to read it.

#include "PropertyRules.h"

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

class Generation;
struct FileSnapshot;

/// The content of the property file at `path`. Only a regular file is read: a missing one raises
/// Poco::FileNotFoundException, any other that cannot be read (a directory, a FIFO, a device, no
/// read permission, a symbolic link loop) Poco::OpenFileException with the reason as its message.
/// A FIFO is never waited on.
std::string readPropertyFile(const std::string& path);

/// The files `names` of `directory` as they are now, each read as readPropertyFile reads it (or
/// why it could not be).
std::unique_ptr<const FileSnapshot> readFiles(const std::string& directory,
                                              const std::vector<std::string>& names);

/// The content of the file `name` of `directory` as `files` holds it, else (a file it does not
/// hold) as it is on disk. Throws as readPropertyFile.
std::string readPropertyFile(const FileSnapshot& files, const std::string& directory,
                             const std::string& name);

/// The content of the file `name` of `generation`: as the reload that made the generation read it,
/// else as it is on disk. Throws as readPropertyFile.
std::string readPropertyFile(const Generation& generation, const std::string& name);

/// The content of the file `installationName` of `generation`; when it cannot be opened
/// (Poco::OpenFileException) or does not exist (Poco::FileNotFoundException), logs the matching text
/// at info level and reads `defaultName` instead. The two files are never merged. A default file
/// that cannot be read either throws.
std::string readInstallationOrDefault(const Generation& generation, const std::string& installationName,
                                      const std::string& defaultName, Logger* logger,
                                      const std::string& textWhenUnopenable,
                                      const std::string& textWhenNotFound);

/// Poco's reading of `text`, the content of a property file (the keys and values its load gives).
Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> parseProperties(std::string_view text);

/// Poco's reading of a file that holds a numbered list (keyPrefix + "%04d": "AC_0000", "AC_0001",
/// ...), as the plan files do by the thousand. The list's keys are kept by their index as Poco
/// reads them, not in Poco's map: the plan walks them once, in order. They answer getString() as
/// any key does, but keys() does not list them.
class NumberedProperties : public Poco::Util::PropertyFileConfiguration {
public:
    NumberedProperties(std::string_view text, std::string prefix);

    /// Calls `visit(value)` for the keys of the list from index 0000 on, in order, up to 9998, each
    /// value as getString() answers it. The first missing key ends the list by throwing
    /// Poco::NotFoundException, as getString() does for it: a normal file ends so.
    template <class Visit> void forEachNumberedValue(Visit visit) const;

    /// The walk underneath: calls `visit(index, value)` from index 0000 on, in order, each value as
    /// the file holds it (references unexpanded), while the keys are there and `visit` returns true.
    /// Returns the index of the missing key that ended the list, or -1.
    template <class Visit> int forEachRawNumberedValue(Visit visit) const;

protected:
    ~NumberedProperties() override;

    bool getRaw(const std::string& key, std::string& value) const override;
    void setRaw(const std::string& key, const std::string& value) override;

private:
    /// Files one property: a key of the list by its index, any other in Poco's map.
    void keep(std::string_view key, std::string_view value);

    /// Where a value of the list stands in `buffer`.
    struct Value {
        std::uint32_t begin = 0, length = 0;
        bool present = false;
    };
    std::string_view valueOf(const Value& value) const {
        return std::string_view(buffer).substr(value.begin, value.length);
    }

    std::string keyPrefix;
    std::string buffer;        // the values of the list, one after the other
    std::vector<Value> values; // by index; a later line of a key replaces an earlier one
};

template <class Visit> void NumberedProperties::forEachNumberedValue(Visit visit) const {
    std::string expanded;
    const int missing = forEachRawNumberedValue([&](int index, std::string_view value) {
        if (!holdsReferences(value)) {
            visit(value);
        } else {
            expanded = getString(numberedKey(keyPrefix, index));
            visit(std::string_view(expanded));
        }
        return true;
    });
    if (missing >= 0)
        throw Poco::NotFoundException(numberedKey(keyPrefix, missing));
}

template <class Visit> int NumberedProperties::forEachRawNumberedValue(Visit visit) const {
    for (int index = 0; index <= LAST_NUMBERED_INDEX; ++index) {
        const auto slot = static_cast<std::size_t>(index);
        if (slot >= values.size() || !values[slot].present)
            return index;
        if (!visit(index, valueOf(values[slot])))
            return -1;
    }
    return -1;
}

} // namespace numbering

#endif
