#include "ConfigurationDirectory.h"

#include "numbering/KesNumberingConfig.h"

#include <iostream>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isReadable(const std::string& path) {
    return access(path.c_str(), R_OK) == 0;
}

bool isDirectory(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::string withSlash(std::string directory) {
    if (!directory.empty() && directory.back() != '/')
        directory += '/';
    return directory;
}

std::string shippedConfiguration() {
    char self[PATH_MAX];
    ssize_t length = readlink("/proc/self/exe", self, sizeof self - 1);
    if (length > 0) {
        std::string directory(self, static_cast<std::size_t>(length));
        directory.erase(directory.rfind('/') + 1);
        std::string installed = directory + "../" NUMBERING_INSTALLED_DATA_SUBDIR;
        if (isReadable(installed + "dialingrules_default.properties"))
            return installed;
    }
    return NUMBERING_SOURCE_DATA_DIR;
}

bool holdsDialingRules(const std::string& directory) {
    return isReadable(directory + "dialingrules.properties") ||
           isReadable(directory + "dialingrules_default.properties");
}

std::string configurationDirectory(const Options& options) {
    if (!options.configDir.empty())
        return withSlash(options.configDir);
    // NUMBERING_CONFIG_DIR when the library was loaded, else its fixed directory.
    const std::string library = numbering::KesNumberingConfig::configDirectory();
    if (isDirectory(library))
        return library;
    const std::string shipped = shippedConfiguration();
    std::cerr << "numbering: note: " << library << " does not exist: reading the shipped configuration in "
              << shipped << " (numbering init puts it where the library reads it)\n";
    return shipped;
}
