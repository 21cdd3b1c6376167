#ifndef NUMBERING_SRC_DIALABLE_STRATEGYCACHE_H
#define NUMBERING_SRC_DIALABLE_STRATEGYCACHE_H

#include "lifecycle/Generation.h"
#include "numbering/KesDialableManager.h"

namespace numbering {

/// The strategy cache of `generation`, made on first use (KesDialableManager::getInstance() for
/// that generation).
KesDialableManager& strategyCacheOf(Generation& generation);

} // namespace numbering

#endif
