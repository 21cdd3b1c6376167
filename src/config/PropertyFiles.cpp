#include "PropertyFiles.h"

#include "numbering/Logger.h"

#include <Poco/Exception.h>

namespace numbering {

PropertyFile openInstallationOrDefault(const std::string& installationFile, const std::string& defaultFile,
                                       Logger* logger, const std::string& textWhenUnopenable,
                                       const std::string& textWhenNotFound) {
    try {
        return PropertyFile(new Poco::Util::PropertyFileConfiguration(installationFile));
    } catch (const Poco::OpenFileException&) {
        logger->info(textWhenUnopenable);
    } catch (const Poco::FileNotFoundException&) {
        logger->info(textWhenNotFound);
    }
    return PropertyFile(new Poco::Util::PropertyFileConfiguration(defaultFile));
}

std::string leadingDigits(const std::string& value) {
    std::string::size_type end = 0;
    while (end < value.size() && value[end] >= '0' && value[end] <= '9')
        ++end;
    return value.substr(0, end);
}

} // namespace numbering
