#include "numbering/KesNumberingRules.h"

#include "config/Configuration.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <atomic>
#include <mutex>
#include <typeinfo>

namespace numbering {

KesNumberingRules* KesNumberingRules::instance = nullptr;
KesNumberingConfig* KesNumberingRules::config = nullptr;
Logger* KesNumberingRules::logger = Logger::getLogger(typeid(KesNumberingRules).name());

std::string KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER = "*#ABCD";
std::string KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER = " ()-.";

namespace {

/// The facade, published for getInstance()'s look-up without a lock; `instance` mirrors it.
std::atomic<KesNumberingRules*> facade{nullptr};

/// Keeps `config` on the current store when a reload replaces it.
void followCurrentStore() {
    if (KesNumberingRules::instance != nullptr)
        KesNumberingRules::config = KesNumberingConfig::instance;
}

} // namespace

KesNumberingRules* KesNumberingRules::getInstance() {
    if (KesNumberingRules* made = facade.load(std::memory_order_acquire))
        return made;
    std::lock_guard<std::recursive_mutex> lock(Configuration::lifecycle());
    if (instance == nullptr) {
        instance = new KesNumberingRules();
        facade.store(instance, std::memory_order_release);
    }
    return instance;
}

void KesNumberingRules::resetInstance() {
    if (Logger::m_Traces)
        logger->debug("Releasing resources");
    std::lock_guard<std::recursive_mutex> lock(Configuration::lifecycle());
    // The configuration drops its plan and strategy caches before the store they were built from.
    KesNumberingConfig::resetInstance();
    config = nullptr;
    facade.store(nullptr, std::memory_order_release);
    // The class has no virtual destructor; the singleton is always made by getInstance() as a
    // KesNumberingRules itself, so the destructor called here is the right one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdelete-non-virtual-dtor"
    delete instance;
#pragma GCC diagnostic pop
    instance = nullptr;
}

void KesNumberingRules::reload() {
    Configuration::reload(nullptr, followCurrentStore);
}

void KesNumberingRules::reload(const std::string& configDirectory) {
    Configuration::reload(&configDirectory, followCurrentStore);
}

KesNumberingRules::KesNumberingRules() {
    if (Logger::m_Traces)
        logger->debug("KesNumberingRules()");
    if (config == nullptr)
        config = KesNumberingConfig::getInstance();
}

std::vector<std::string> KesNumberingRules::getCountryList() {
    PinnedConfiguration pin;
    return pin.store()->getCountryList();
}

std::string KesNumberingRules::getCountryCode(std::string countryName) {
    PinnedConfiguration pin;
    return pin.store()->getCountryCodeFromName(std::move(countryName));
}

std::string KesNumberingRules::getCountryName(std::string countryCode) {
    PinnedConfiguration pin;
    return pin.store()->getCountryName(std::move(countryCode));
}

std::string KesNumberingRules::getCountryCodeFromNumber(std::string countryNumber) {
    PinnedConfiguration pin;
    return pin.store()->getCountryCodeFromNumber(std::move(countryNumber));
}

} // namespace numbering
