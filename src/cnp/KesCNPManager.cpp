#include "numbering/KesCNPManager.h"

#include "config/ShortKeyIndex.h"
#include "numbering/KesCNPFactory.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <Poco/Bugcheck.h>
#include <Poco/String.h>

#include <algorithm>
#include <typeinfo>

namespace numbering {

namespace {

/// Holds a mutex for a scope, as Poco's ScopedLock does, but takes it as a spinning lock would: the
/// section it guards is a look-up of a few instructions, so a thread that finds the mutex taken
/// tries again for a moment before it waits in the kernel. Waiting at once, two threads converting
/// at the same time would put each other to sleep on almost every collision.
class SpinningScopedLock {
public:
    explicit SpinningScopedLock(Poco::FastMutex& held) : mutex(held) {
        for (int attempt = 0; attempt < ATTEMPTS; ++attempt) {
            if (mutex.tryLock())
                return;
#if defined(__x86_64__) || defined(__i386__)
            __builtin_ia32_pause();
#endif
        }
        mutex.lock();
    }
    SpinningScopedLock(const SpinningScopedLock&) = delete;
    SpinningScopedLock& operator=(const SpinningScopedLock&) = delete;
    ~SpinningScopedLock() {
        try {
            mutex.unlock();
        } catch (...) {
            poco_unexpected();
        }
    }

private:
    static const int ATTEMPTS = 100;
    Poco::FastMutex& mutex;
};

} // namespace

KesCNPManager* KesCNPManager::instance = nullptr;
Logger* KesCNPManager::logger = Logger::getLogger(typeid(KesCNPManager).name());

KesCNPManager* KesCNPManager::getInstance() {
    if (Logger::m_Traces)
        logger->debug("getInstance()");
    if (instance == nullptr)
        instance = new KesCNPManager();
    return instance;
}

void KesCNPManager::resetInstance() {
    delete instance;
    instance = nullptr;
}

KesCNPManager::KesCNPManager() : plans(64), index(new ShortKeyIndex<KesCNP*>) {
    if (Logger::m_Traces)
        logger->debug("KesCNPManager()");
}

KesCNPManager::~KesCNPManager() {
    plans.clear();
    notFoundCountries.clear();
}

KesCNP* KesCNPManager::getCNP(std::string country) {
    if (Logger::m_Traces)
        logger->debug("getCNP('" + country + "')");
    SpinningScopedLock lock(mutex);
    if (ShortKeyIndex<KesCNP*>::indexable(country)) {
        if (KesCNP* const* plan = index->find(country))
            return *plan;
    } else {
        auto found = plans.find(country);
        if (found != plans.end())
            return found->second.get();
    }
    if (isCountryNotFound(country))
        return nullptr;
    return loadCNPClass(country);
}

KesCNP* KesCNPManager::loadCNPClass(std::string country) {
    if (Logger::m_Traces)
        logger->debug("loadCNPClass('" + country + "')");
    if (country.size() < 2) {
        notFoundCountries.push_back(country);
        return nullptr;
    }
    Poco::toUpperInPlace(country);
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    std::string number = config->getCountryNumber(country);
    if (!config->isSpecificFormatActiveForCountry(number)) {
        notFoundCountries.push_back(country);
        return nullptr;
    }
    Poco::AutoPtr<KesCNP> plan(KesCNPFactory::CreateInstance(number));
    if (plan.isNull()) {
        notFoundCountries.push_back(country);
        return nullptr;
    }
    // A lower-case key whose upper-case plan is already cached gets the cached plan; the
    // freshly built one goes with its last reference.
    KesCNP* cached = plans.insert(std::make_pair(country, plan)).first->second.get();
    reindex();
    return cached;
}

void KesCNPManager::reindex() {
    index->assignFrom(plans, [](auto& entry) { return entry.second.get(); });
}

bool KesCNPManager::isCountryNotFound(std::string country) {
    return std::find(notFoundCountries.begin(), notFoundCountries.end(), country) != notFoundCountries.end();
}

} // namespace numbering
