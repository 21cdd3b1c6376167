#include "numbering/KesCNPManager.h"

#include "config/Configuration.h"
#include "config/TextKeyMap.h"
#include "numbering/KesCNPFactory.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <Poco/String.h>

#include <algorithm>
#include <typeinfo>

namespace numbering {

KesCNPManager* KesCNPManager::instance = nullptr;
Logger* KesCNPManager::logger = Logger::getLogger(typeid(KesCNPManager).name());

KesCNPManager* KesCNPManager::getInstance() {
    if (Logger::m_Traces)
        logger->debug("getInstance()");
    return Configuration::inUse().cache(Configuration::PLANS, instance, [] { return new KesCNPManager(); });
}

void KesCNPManager::resetInstance() {
    if (Configuration* current = Configuration::current())
        current->dropCache(Configuration::PLANS);
}

KesCNPManager::KesCNPManager() : plans(new TextKeyMap<Poco::AutoPtr<KesCNP>>) {
    if (Logger::m_Traces)
        logger->debug("KesCNPManager()");
}

KesCNPManager::~KesCNPManager() {
    if (instance == this)
        instance = nullptr;
}

KesCNP* KesCNPManager::getCNP(std::string country) {
    if (Logger::m_Traces)
        logger->debug("getCNP('" + country + "')");
    return findOrLoad(*plans, mutex, country, [&]() -> KesCNP* {
        if (isCountryNotFoundLocked(country))
            return nullptr;
        return loadCNPClass(country);
    });
}

KesCNP* KesCNPManager::loadCNPClass(std::string country) {
    if (Logger::m_Traces)
        logger->debug("loadCNPClass('" + country + "')");
    if (country.size() < 2) {
        notFound(country);
        return nullptr;
    }
    Poco::toUpperInPlace(country);
    KesNumberingConfig* config = KesNumberingConfig::getInstance();
    std::string number = config->getCountryNumber(country);
    if (!config->isSpecificFormatActiveForCountry(number)) {
        notFound(country);
        return nullptr;
    }
    Poco::AutoPtr<KesCNP> plan(KesCNPFactory::CreateInstance(number));
    if (plan.isNull()) {
        notFound(country);
        return nullptr;
    }
    // A lower-case key whose upper-case plan is already cached gets the cached plan; the
    // freshly built one goes with its last reference.
    return plans->insert(country, plan).get();
}

void KesCNPManager::notFound(const std::string& country) {
    notFoundCountries.push_back(country);
    // Later look-ups of this very key answer null without the mutex; other spellings still come
    // here, and are appended again, as they always were.
    plans->insert(country, Poco::AutoPtr<KesCNP>());
}

bool KesCNPManager::isCountryNotFound(std::string country) {
    Poco::FastMutex::ScopedLock lock(mutex);
    return isCountryNotFoundLocked(country);
}

bool KesCNPManager::isCountryNotFoundLocked(const std::string& country) const {
    return std::find(notFoundCountries.begin(), notFoundCountries.end(), country) != notFoundCountries.end();
}

} // namespace numbering
