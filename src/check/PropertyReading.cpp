#include "PropertyReading.h"

#include "config/PropertyFiles.h"

namespace numbering {
namespace configcheck {

PropertyText openPropertyFile(const FileSnapshot& files, const std::string& directory,
                              const std::string& name) {
    PropertyText file;
    file.text = readPropertyFile(files, directory, name);
    file.properties = parseProperties(file.text);
    return file;
}

Poco::AutoPtr<NumberedProperties> readNumberedList(const PropertyText& file, const std::string& prefix) {
    return new NumberedProperties(file.text, prefix);
}

} // namespace configcheck
} // namespace numbering
