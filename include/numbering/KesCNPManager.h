#ifndef NUMBERING_KESCNPMANAGER_H
#define NUMBERING_KESCNPMANAGER_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

#include <Poco/AutoPtr.h>
#include <Poco/HashMap.h>
#include <Poco/Mutex.h>

#include <memory>
#include <string>
#include <vector>

class Logger;

namespace numbering {

template <class Value> class ShortKeyIndex;

/// The process-wide cache of country plans, keyed by the upper-case country code ("DE").
/// getCNP runs entirely under the manager's mutex, so each plan (and its file reading) is built
/// once. A country without a plan is remembered and never retried until resetInstance().
class NUMBERING_API KesCNPManager {
public:
    static KesCNPManager* getInstance();
    static void resetInstance();

    virtual ~KesCNPManager();

    /// The cached plan of `country`, or null. Borrowed: the manager keeps the reference.
    virtual KesCNP* getCNP(std::string country);

    KesCNP* loadCNPClass(std::string country);
    bool isCountryNotFound(std::string country);

    static KesCNPManager* instance;
    static Logger* logger;

private:
    KesCNPManager();
    KesCNPManager(const KesCNPManager&) = delete;
    KesCNPManager& operator=(const KesCNPManager&) = delete;

    /// Rebuilds `index` from `plans`, after every insertion.
    void reindex();

    Poco::HashMap<std::string, Poco::AutoPtr<KesCNP>> plans;
    std::vector<std::string> notFoundCountries;
    /// Every conversion takes it: it has a cache line of its own, so that threads waiting for it do
    /// not slow down the reads of the thread that holds it.
    alignas(64) Poco::FastMutex mutex;
    /// The plans by key without hashing a string, so that the mutex is held for a few instructions.
    alignas(64) std::unique_ptr<ShortKeyIndex<KesCNP*>> index;
};

} // namespace numbering

#endif
