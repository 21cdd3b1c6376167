#ifndef NUMBERING_SRC_CHECK_SNAPSHOTCHECK_H
#define NUMBERING_SRC_CHECK_SNAPSHOTCHECK_H

#include "numbering/KesConfigurationCheck.h"

#include <string>

namespace numbering {

struct FileSnapshot;

namespace configcheck {

/// What the check finds in `files`, the files of `directory` (ending in "/") taken at one moment:
/// a reload that refuses errors judges the very bytes it then activates.
KesConfigurationReport checkFiles(const std::string& directory, const FileSnapshot& files);

} // namespace configcheck
} // namespace numbering

#endif
