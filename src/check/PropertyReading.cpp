#include "PropertyReading.h"

#include "config/PropertyFiles.h"

#include <Poco/Exception.h>
#include <Poco/String.h>

#include <sys/stat.h>

namespace numbering {
namespace configcheck {

PropertyText openPropertyFile(const std::string& path) {
    // Only a regular file is read: opening a FIFO would wait for a writer, and a directory reads
    // as an empty file.
    struct stat status;
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw Poco::OpenFileException(S_ISDIR(status.st_mode) ? "it is a directory"
                                                              : "it is not a regular file");
    PropertyText file;
    try {
        file.text = readPropertyFile(path);
    } catch (const Poco::FileNotFoundException&) {
        throw;
    } catch (const Poco::FileException& e) {
        throw Poco::OpenFileException(Poco::toLower(std::string(e.name()))); // "access to file denied", ...
    }
    Poco::AutoPtr<PropertyFileReader> reader(new PropertyFileReader);
    reader->loadText(file.text);
    file.properties = reader;
    return file;
}

std::string leadingDigits(std::string_view value) {
    return numbering::leadingDigits(value);
}

} // namespace configcheck
} // namespace numbering
