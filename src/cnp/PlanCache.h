#ifndef NUMBERING_SRC_CNP_PLANCACHE_H
#define NUMBERING_SRC_CNP_PLANCACHE_H

#include "lifecycle/Generation.h"
#include "numbering/KesCNPManager.h"

#include <string>
#include <vector>

namespace numbering {

/// The plan cache of `generation`, made on first use (KesCNPManager::getInstance() for that generation).
KesCNPManager& planCacheOf(Generation& generation);

/// The names of the files that the plans of KesCNPRegistry, or the dialing of their countries, may
/// read: what a reload reads.
std::vector<std::string> planFileNames();

} // namespace numbering

#endif
