#ifndef NUMBERING_SRC_CHECK_PROPERTYREADING_H
#define NUMBERING_SRC_CHECK_PROPERTYREADING_H

// The configuration check reaches the library's property file reader through this file only, so
// that it opens and reads every file exactly as the loaders do and follows them when the reader
// changes.

#include "config/PropertyFiles.h"

#include <Poco/AutoPtr.h>
#include <Poco/Util/AbstractConfiguration.h>

#include <string>
#include <string_view>

namespace numbering {

struct FileSnapshot;

namespace configcheck {

/// A property file as the library reads it, with its text (which only serves to find lines).
struct PropertyText {
    Poco::AutoPtr<Poco::Util::AbstractConfiguration> properties;
    std::string text;
};

/// Opens the file `name` of `directory` as `files` holds it, with the library's own opening of a
/// property file: Poco::FileNotFoundException when it did not exist, Poco::OpenFileException (whose
/// message says why) when it could not be read. A directory, a FIFO or a device cannot be opened:
/// the check never waits for a writer.
PropertyText openPropertyFile(const FileSnapshot& files, const std::string& directory,
                              const std::string& name);

/// `file` read as the loaders read a numbered list of keys `prefix` + "%04d".
Poco::AutoPtr<NumberedProperties> readNumberedList(const PropertyText& file, const std::string& prefix);

} // namespace configcheck
} // namespace numbering

#endif
