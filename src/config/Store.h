#ifndef NUMBERING_SRC_CONFIG_STORE_H
#define NUMBERING_SRC_CONFIG_STORE_H

#include "lifecycle/Generation.h"
#include "numbering/KesNumberingConfig.h"

#include <string>
#include <vector>

namespace numbering {

/// The store of `generation`, read from the generation's files when none is made yet.
KesNumberingConfig& loadStoreOf(Generation& generation);

/// The store of `generation`, read from the generation's files on first use.
inline KesNumberingConfig& storeOf(Generation& generation) {
    if (KesNumberingConfig* made = generation.store.get())
        return *made;
    return loadStoreOf(generation);
}

/// The names of the files a store reads: each installation file and its default.
std::vector<std::string> storeFileNames();

} // namespace numbering

#endif
