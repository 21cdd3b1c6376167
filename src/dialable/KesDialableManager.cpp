#include "numbering/KesDialableManager.h"

#include "StrategyCache.h"
#include "lifecycle/Conversion.h"
#include "lifecycle/TextKeyMap.h"
#include "numbering/KesDialableFactory.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

KesDialableManager* KesDialableManager::instance = nullptr;
Logger* KesDialableManager::logger = Logger::getLogger(typeid(KesDialableManager).name());

KesDialableManager& strategyCacheOf(Generation& generation) {
    if (Logger::m_Traces)
        KesDialableManager::logger->debug("getInstance()");
    return generation.strategies.getOrMake([&generation] { return new KesDialableManager(generation); },
                                           [&generation] { return generation.isCurrent(); });
}

KesDialableManager* KesDialableManager::getInstance() {
    const Conversion conversion; // inside a conversion, the cache of the generation it pinned
    return &strategyCacheOf(conversion.generation());
}

void KesDialableManager::resetInstance() {
    Generation::reset(&Generation::strategies);
}

KesDialableManager::KesDialableManager(Generation& owner)
    : generation(owner), strategies(new TextKeyMap<Poco::AutoPtr<KesDialable>>) {
    if (Logger::m_Traces)
        logger->debug("KesDialableManager()");
}

KesDialableManager::~KesDialableManager() = default;

KesDialable* KesDialableManager::getDialable(std::string countryNumber) {
    if (Logger::m_Traces)
        logger->debug("getDialable('" + countryNumber + "')");
    return findOrLoad(*strategies, mutex, countryNumber, [&] { return loadDialableClass(countryNumber); });
}

KesDialable* KesDialableManager::loadDialableClass(std::string countryNumber) {
    if (Logger::m_Traces)
        logger->debug(countryNumber.empty() ? std::string("loadDialableClass('strCountryNumber=NULL')")
                                            : "loadDialableClass('" + countryNumber + "')");
    if (countryNumber.empty())
        return nullptr;
    const MakingFor making(
        generation); // the strategy reads its file, and later the store, of this generation
    Poco::AutoPtr<KesDialable> strategy(KesDialableFactory::CreateInstance(countryNumber));
    return strategies->insert(countryNumber, strategy).get();
}

} // namespace numbering
