#ifndef NUMBERING_KESDIALABLEMANAGER_H
#define NUMBERING_KESDIALABLEMANAGER_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

#include <Poco/AutoPtr.h>
#include <Poco/HashMap.h>

#include <memory>
#include <string>

class Logger;

namespace numbering {

template <class Value> class ShortKeyIndex;

/// The process-wide cache of dialing strategies, keyed by calling code ("33"). Takes no lock: the
/// host fills it (one conversion per country) before concurrent use; afterwards it is only read.
class NUMBERING_API KesDialableManager {
public:
    static KesDialableManager* getInstance();
    static void resetInstance();

    virtual ~KesDialableManager();

    /// The strategy of `countryNumber`, made on first use; null for an empty code. Borrowed.
    virtual KesDialable* getDialable(std::string countryNumber);

    KesDialable* loadDialableClass(std::string countryNumber);

    static KesDialableManager* instance;
    static Logger* logger;

private:
    KesDialableManager();
    KesDialableManager(const KesDialableManager&) = delete;
    KesDialableManager& operator=(const KesDialableManager&) = delete;

    /// Rebuilds `index` from `strategies`, after every insertion.
    void reindex();

    Poco::HashMap<std::string, Poco::AutoPtr<KesDialable>> strategies;
    /// The strategies by calling code without hashing a string.
    std::unique_ptr<ShortKeyIndex<KesDialable*>> index;
};

} // namespace numbering

#endif
