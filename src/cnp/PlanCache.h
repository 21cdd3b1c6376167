#ifndef NUMBERING_SRC_CNP_PLANCACHE_H
#define NUMBERING_SRC_CNP_PLANCACHE_H

#include "lifecycle/Generation.h"
#include "lifecycle/TextKeyMap.h"
#include "numbering/KesCNPManager.h"
#include "numbering/Logger.h"

#include <string>
#include <string_view>
#include <vector>

namespace numbering {

/// The plan cache of `generation`, made on first use (KesCNPManager::getInstance() for that generation).
KesCNPManager& planCacheOf(Generation& generation);

/// planCacheOf(generation).getCNP(country), without copying the code when the plan (or the
/// country's lack of one) is cached already and nothing is traced.
inline KesCNP* planOf(Generation& generation, std::string_view country) {
    if (!Logger::m_Traces)
        if (KesCNPManager* cache = generation.plans.get())
            if (Poco::AutoPtr<KesCNP>* cached = cache->plans->find(country))
                return cached->get();
    return planCacheOf(generation).getCNP(std::string(country));
}

/// The names of the files that the plans of KesCNPRegistry, or the dialing of their countries, may
/// read: what a reload reads.
std::vector<std::string> planFileNames();

} // namespace numbering

#endif
