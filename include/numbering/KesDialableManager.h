#ifndef NUMBERING_KESDIALABLEMANAGER_H
#define NUMBERING_KESDIALABLEMANAGER_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

#include <Poco/AutoPtr.h>
#include <Poco/Mutex.h>

#include <memory>
#include <string>
#include <string_view>

class Logger;

namespace numbering {

class Generation;
template <class Value> class TextKeyMap;

/// The cache of dialing strategies, keyed by calling code ("33"), one for each loaded
/// configuration. A cached strategy is found without a lock; the first look-up of a calling code
/// builds its strategy once, under the manager's mutex (the Colombian one reads its operator file).
class NUMBERING_API KesDialableManager {
public:
    /// The cache of the configuration in use (see KesNumberingConfig::getInstance()); valid until
    /// the first reload after the call has completed.
    static KesDialableManager* getInstance();
    /// Destroys the current configuration's strategy cache and its strategies; the store and the
    /// plan cache stay. Only when no conversion runs.
    static void resetInstance();

    virtual ~KesDialableManager();

    /// The strategy of `countryNumber`, made on first use; null for an empty code. Borrowed, and
    /// valid until the first reload after the call has completed.
    virtual KesDialable* getDialable(std::string countryNumber);

    /// Builds, caches and returns the strategy of `countryNumber` (called by getDialable under the mutex).
    KesDialable* loadDialableClass(std::string countryNumber);

    /// The current configuration's cache, if one was made, for inspection only: it changes with
    /// every reload, so reach the cache through getInstance().
    static KesDialableManager* instance;
    /// The cache's traces and errors.
    static Logger* logger;

private:
    friend KesDialableManager& strategyCacheOf(Generation& generation);
    friend KesDialable* dialableOf(Generation& generation, std::string_view countryNumber);
    explicit KesDialableManager(Generation& generation);
    KesDialableManager(const KesDialableManager&) = delete;
    KesDialableManager& operator=(const KesDialableManager&) = delete;

    /// The generation whose store and files the strategies read.
    Generation& generation;
    std::unique_ptr<TextKeyMap<Poco::AutoPtr<KesDialable>>> strategies;
    /// Serialises the building of strategies.
    Poco::FastMutex mutex;
};

} // namespace numbering

#endif
