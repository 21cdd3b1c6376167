#ifndef NUMBERING_SRC_CNP_PLANCACHE_H
#define NUMBERING_SRC_CNP_PLANCACHE_H

#include "lifecycle/Generation.h"
#include "numbering/KesCNPManager.h"

#include <string>
#include <vector>

namespace numbering {

/// The plan cache of `generation`, made on first use (KesCNPManager::getInstance() for that generation).
KesCNPManager& planCacheOf(Generation& generation);

/// The names of the files the plans of the factory may read ("tz310cnp_<calling code>.properties"
/// and its default), the Colombian strategy's operator file among them.
std::vector<std::string> planFileNames();

} // namespace numbering

#endif
