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
namespace configcheck {

/// A property file as the library reads it, with its text (which only serves to find lines).
struct PropertyText {
    Poco::AutoPtr<Poco::Util::AbstractConfiguration> properties;
    std::string text;
};

/// Opens `path` with the library's own opening of a property file: Poco::FileNotFoundException when
/// it does not exist, Poco::OpenFileException (whose message says why) when it cannot be read. A
/// directory, a FIFO or a device cannot be opened: the check never waits for a writer.
PropertyText openPropertyFile(const std::string& path);

/// `file` read as the loaders read a numbered list of keys `prefix` + "%04d".
Poco::AutoPtr<NumberedProperties> readNumberedList(const PropertyText& file, const std::string& prefix);

} // namespace configcheck
} // namespace numbering

#endif
