#ifndef NUMBERING_KESCNPMANAGER_H
#define NUMBERING_KESCNPMANAGER_H

#include "numbering/Export.h"
#include "numbering/KesCNP.h"

#include <Poco/AutoPtr.h>
#include <Poco/Mutex.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Logger;

namespace numbering {

class Generation;
template <class Value> class TextKeyMap;

/// The cache of country plans, keyed by the upper-case country code ("DE"), one for each loaded
/// configuration. A cached plan, or a country known to have none, is found without a lock; the
/// first look-up of a country builds its plan (and reads its file) once, under the manager's mutex.
/// A country without a plan is remembered and never retried for the life of the manager, even if
/// the configuration store is reset: only resetInstance() or a reload retries it.
class NUMBERING_API KesCNPManager {
public:
    /// The cache of the configuration in use (see KesNumberingConfig::getInstance()); valid until
    /// the first reload after the call has completed.
    static KesCNPManager* getInstance();
    /// Destroys the current configuration's plan cache, its plans and its memory of countries
    /// without a plan; the store and the strategy cache stay. Only when no conversion runs.
    static void resetInstance();

    virtual ~KesCNPManager();

    /// The plan of `country`, or null. Borrowed: the manager keeps the reference, and the plan
    /// stays valid until the first reload after the call has completed.
    virtual KesCNP* getCNP(std::string country);

    /// Builds, caches and returns the plan of `country` (called by getCNP under the mutex).
    KesCNP* loadCNPClass(std::string country);
    /// Whether `country` is remembered as one without a plan.
    bool isCountryNotFound(std::string country);

    /// The current configuration's cache, if one was made, for inspection only: it changes with
    /// every reload, so reach the cache through getInstance().
    static KesCNPManager* instance;
    /// The cache's traces and errors.
    static Logger* logger;

private:
    friend KesCNPManager& planCacheOf(Generation& generation);
    friend KesCNP* planOf(Generation& generation, std::string_view country);
    explicit KesCNPManager(Generation& generation);
    KesCNPManager(const KesCNPManager&) = delete;
    KesCNPManager& operator=(const KesCNPManager&) = delete;

    /// Remembers `country` as one without a plan.
    void notFound(const std::string& country);
    bool isCountryNotFoundLocked(const std::string& country) const;

    /// The generation whose store and files the plans are built from.
    Generation& generation;
    /// Plans by country, and a null plan for each country remembered as having none.
    std::unique_ptr<TextKeyMap<Poco::AutoPtr<KesCNP>>> plans;
    std::vector<std::string> notFoundCountries;
    /// Serialises the building of plans and the not-found list.
    Poco::FastMutex mutex;
};

} // namespace numbering

#endif
