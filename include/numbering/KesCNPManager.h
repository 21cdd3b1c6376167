#ifndef NUMBERING_KESCNPMANAGER_H
#define NUMBERING_KESCNPMANAGER_H

#include "numbering/KesCNP.h"

#include <Poco/AutoPtr.h>
#include <Poco/HashMap.h>
#include <Poco/Mutex.h>

#include <string>
#include <vector>

class Logger;

namespace numbering {

/// The process-wide cache of country plans, keyed by the upper-case country code ("DE").
/// getCNP runs entirely under the manager's mutex, so each plan (and its file reading) is built
/// once. A country without a plan is remembered and never retried until resetInstance().
class KesCNPManager {
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

    Poco::HashMap<std::string, Poco::AutoPtr<KesCNP>> plans;
    std::vector<std::string> notFoundCountries;
    Poco::FastMutex mutex;
};

} // namespace numbering

#endif
