#include "PropertyReading.h"

#include "config/PropertyFiles.h"

namespace numbering {
namespace configcheck {

PropertyText openPropertyFile(const std::string& path) {
    PropertyText file;
    file.text = readPropertyFile(path);
    file.properties = PropertyFile::parse(file.text);
    return file;
}

std::string leadingDigits(std::string_view value) {
    return numbering::leadingDigits(value);
}

} // namespace configcheck
} // namespace numbering
