#include "ConfigurationFiles.h"

#include "PlanCache.h"
#include "config/PropertyFiles.h"
#include "config/Store.h"

namespace numbering {

std::vector<std::string> configurationFileNames() {
    std::vector<std::string> names = storeFileNames();
    for (std::string& name : planFileNames())
        names.push_back(std::move(name));
    return names;
}

std::unique_ptr<const FileSnapshot> readConfigurationFiles(const std::string& directory) {
    return readFiles(directory, configurationFileNames());
}

} // namespace numbering
