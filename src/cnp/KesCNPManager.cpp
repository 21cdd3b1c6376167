#include "numbering/KesCNPManager.h"

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
    if (instance == nullptr)
        instance = new KesCNPManager();
    return instance;
}

void KesCNPManager::resetInstance() {
    delete instance;
    instance = nullptr;
}

KesCNPManager::KesCNPManager() : plans(64) {
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
    Poco::FastMutex::ScopedLock lock(mutex);
    auto found = plans.find(country);
    if (found != plans.end())
        return found->second.get();
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
    return plans.insert(std::make_pair(country, plan)).first->second.get();
}

bool KesCNPManager::isCountryNotFound(std::string country) {
    return std::find(notFoundCountries.begin(), notFoundCountries.end(), country) != notFoundCountries.end();
}

} // namespace numbering
