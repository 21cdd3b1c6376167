#include "numbering/KesDialableManager.h"

#include "config/Configuration.h"
#include "config/TextKeyMap.h"
#include "numbering/KesDialableFactory.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

KesDialableManager* KesDialableManager::instance = nullptr;
Logger* KesDialableManager::logger = Logger::getLogger(typeid(KesDialableManager).name());

KesDialableManager* KesDialableManager::getInstance() {
    if (Logger::m_Traces)
        logger->debug("getInstance()");
    return Configuration::inUse().cache(Configuration::STRATEGIES, instance,
                                        [] { return new KesDialableManager(); });
}

void KesDialableManager::resetInstance() {
    if (Configuration* current = Configuration::current())
        current->dropCache(Configuration::STRATEGIES);
}

KesDialableManager::KesDialableManager() : strategies(new TextKeyMap<Poco::AutoPtr<KesDialable>>) {
    if (Logger::m_Traces)
        logger->debug("KesDialableManager()");
}

KesDialableManager::~KesDialableManager() {
    if (instance == this)
        instance = nullptr;
}

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
    Poco::AutoPtr<KesDialable> strategy(KesDialableFactory::CreateInstance(countryNumber));
    return strategies->insert(countryNumber, strategy).get();
}

} // namespace numbering
