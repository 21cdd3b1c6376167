#include "numbering/KesCNPManager.h"

#include "PlanCache.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "lifecycle/TextKeyMap.h"
#include "numbering/KesCNPFactory.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <Poco/String.h>

#include <algorithm>
#include <typeinfo>

namespace numbering {

KesCNPManager* KesCNPManager::instance = nullptr;
Logger* KesCNPManager::logger = Logger::getLogger(typeid(KesCNPManager).name());

KesCNPManager& planCacheOf(Generation& generation) {
    if (Logger::m_Traces)
        KesCNPManager::logger->debug("getInstance()");
    return generation.plans.getOrMake([&generation] { return new KesCNPManager(generation); },
                                      [&generation] { return generation.isCurrent(); });
}

KesCNPManager* KesCNPManager::getInstance() {
    const Conversion conversion; // inside a conversion, the cache of the generation it pinned
    return &planCacheOf(conversion.generation());
}

void KesCNPManager::resetInstance() {
    Generation::reset(&Generation::plans);
}

KesCNPManager::KesCNPManager(Generation& owner)
    : generation(owner), plans(new TextKeyMap<Poco::AutoPtr<KesCNP>>) {
    if (Logger::m_Traces)
        logger->debug("KesCNPManager()");
}

KesCNPManager::~KesCNPManager() = default;

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
    KesNumberingConfig& config = storeOf(generation);
    std::string number = config.getCountryNumber(country);
    if (!config.isSpecificFormatActiveForCountry(number)) {
        notFound(country);
        return nullptr;
    }
    const MakingFor making(generation); // the plan reads its file, and later the store, of this generation
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
