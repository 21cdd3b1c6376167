#include "PropertyReading.h"

#include "config/PropertyFiles.h"

namespace numbering {
namespace configcheck {

PropertyText openPropertyFile(const std::string& path) {
    PropertyText file;
    file.text = readPropertyFile(path);
    file.properties = parseProperties(file.text);
    return file;
}

Poco::AutoPtr<NumberedProperties> readNumberedList(const PropertyText& file, const std::string& prefix) {
    return new NumberedProperties(file.text, prefix);
}

} // namespace configcheck
} // namespace numbering
