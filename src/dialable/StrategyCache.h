#ifndef NUMBERING_SRC_DIALABLE_STRATEGYCACHE_H
#define NUMBERING_SRC_DIALABLE_STRATEGYCACHE_H

#include "lifecycle/Generation.h"
#include "lifecycle/TextKeyMap.h"
#include "numbering/KesDialableManager.h"
#include "numbering/Logger.h"

#include <string>
#include <string_view>

namespace numbering {

/// The strategy cache of `generation`, made on first use (KesDialableManager::getInstance() for
/// that generation).
KesDialableManager& strategyCacheOf(Generation& generation);

/// strategyCacheOf(generation).getDialable(countryNumber), without copying the calling code when the
/// strategy is cached already and nothing is traced.
inline KesDialable* dialableOf(Generation& generation, std::string_view countryNumber) {
    if (!Logger::m_Traces)
        if (KesDialableManager* cache = generation.strategies.get())
            if (Poco::AutoPtr<KesDialable>* cached = cache->strategies->find(countryNumber))
                return cached->get();
    return strategyCacheOf(generation).getDialable(std::string(countryNumber));
}

} // namespace numbering

#endif
