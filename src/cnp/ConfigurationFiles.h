#ifndef NUMBERING_SRC_CNP_CONFIGURATIONFILES_H
#define NUMBERING_SRC_CNP_CONFIGURATIONFILES_H

// Every file a configuration may read, taken at one moment: what a reload activates and what the
// configuration check judges, so that both see the same bytes.

#include "lifecycle/Generation.h"

#include <memory>
#include <string>
#include <vector>

namespace numbering {

/// The names of the files a configuration may read: the store's, each plan's area code file and
/// the Colombian operators', each installation file with its default.
std::vector<std::string> configurationFileNames();

/// Those files of `directory` (ending in "/") as they are now.
std::unique_ptr<const FileSnapshot> readConfigurationFiles(const std::string& directory);

} // namespace numbering

#endif
