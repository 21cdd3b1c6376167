#ifndef NUMBERING_SRC_CONFIG_PROPERTYFILES_H
#define NUMBERING_SRC_CONFIG_PROPERTYFILES_H

// Reading of the library's property files, shared by the configuration store, the file-based
// country plans and the Colombian dialing strategy.

#include <Poco/AutoPtr.h>
#include <Poco/Util/PropertyFileConfiguration.h>

#include <cstdio>
#include <string>

class Logger;

namespace numbering {

using PropertyFile = Poco::AutoPtr<Poco::Util::PropertyFileConfiguration>;

/// Opens `installationFile`; when it cannot be opened (Poco's OpenFileException) or does not exist
/// (FileNotFoundException), logs the matching text at info level and opens `defaultFile` instead.
/// The two files are never merged. A default file that cannot be opened either throws.
PropertyFile openInstallationOrDefault(const std::string& installationFile, const std::string& defaultFile,
                                       Logger* logger, const std::string& textWhenUnopenable,
                                       const std::string& textWhenNotFound);

/// The leading run of decimal digits of `value` ("30 Berlin" gives "30").
std::string leadingDigits(const std::string& value);

/// Calls `visit(value)` for the keys keyPrefix + "%04d" from 0000 on, in order, up to 9998.
/// The first missing key ends the list by throwing Poco::NotFoundException, as a normal file does.
template <class Visit> void forEachIndexedValue(Poco::Util::AbstractConfiguration& file, const char* keyPrefix, Visit visit) {
    char key[32];
    for (int index = 0; index <= 9998; ++index) {
        std::snprintf(key, sizeof key, "%s%04d", keyPrefix, index);
        visit(file.getString(key));
    }
}

} // namespace numbering

#endif
