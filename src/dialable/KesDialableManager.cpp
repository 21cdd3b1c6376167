#include "numbering/KesDialableManager.h"

#include "config/ShortKeyIndex.h"
#include "numbering/KesDialableFactory.h"
#include "numbering/Logger.h"

#include <typeinfo>

namespace numbering {

KesDialableManager* KesDialableManager::instance = nullptr;
Logger* KesDialableManager::logger = Logger::getLogger(typeid(KesDialableManager).name());

KesDialableManager* KesDialableManager::getInstance() {
    if (Logger::m_Traces)
        logger->debug("getInstance()");
    if (instance == nullptr)
        instance = new KesDialableManager();
    return instance;
}

void KesDialableManager::resetInstance() {
    delete instance;
    instance = nullptr;
}

KesDialableManager::KesDialableManager() : index(new ShortKeyIndex<KesDialable*>) {
    if (Logger::m_Traces)
        logger->debug("KesDialableManager()");
}

KesDialableManager::~KesDialableManager() = default;

KesDialable* KesDialableManager::getDialable(std::string countryNumber) {
    if (Logger::m_Traces)
        logger->debug("getDialable('" + countryNumber + "')");
    if (ShortKeyIndex<KesDialable*>::indexable(countryNumber)) {
        if (KesDialable* const* strategy = index->find(countryNumber))
            return *strategy;
    } else {
        auto found = strategies.find(countryNumber);
        if (found != strategies.end())
            return found->second.get();
    }
    return loadDialableClass(countryNumber);
}

KesDialable* KesDialableManager::loadDialableClass(std::string countryNumber) {
    if (Logger::m_Traces)
        logger->debug(countryNumber.empty() ? std::string("loadDialableClass('strCountryNumber=NULL')")
                                            : "loadDialableClass('" + countryNumber + "')");
    if (countryNumber.empty())
        return nullptr;
    Poco::AutoPtr<KesDialable> strategy(KesDialableFactory::CreateInstance(countryNumber));
    KesDialable* cached = strategies.insert(std::make_pair(countryNumber, strategy)).first->second.get();
    reindex();
    return cached;
}

void KesDialableManager::reindex() {
    index->assignFrom(strategies, [](auto& entry) { return entry.second.get(); });
}

} // namespace numbering
