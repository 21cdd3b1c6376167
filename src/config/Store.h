#ifndef NUMBERING_SRC_CONFIG_STORE_H
#define NUMBERING_SRC_CONFIG_STORE_H

#include "lifecycle/Generation.h"
#include "numbering/KesNumberingConfig.h"

#include <string>
#include <vector>

namespace numbering {

/// The store of `generation`, read from the generation's files on first use.
KesNumberingConfig& storeOf(Generation& generation);

/// The names of the files a store reads: each installation file and its default.
std::vector<std::string> storeFileNames();

} // namespace numbering

#endif
