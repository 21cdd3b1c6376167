#include "numbering/KesNumberingRules.h"

#include "check/SnapshotCheck.h"
#include "cnp/ConfigurationFiles.h"
#include "config/Store.h"
#include "lifecycle/Conversion.h"
#include "numbering/KesCNPManager.h"
#include "numbering/KesConfigurationRejected.h"
#include "numbering/KesDialableManager.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/Logger.h"

#include <algorithm>
#include <mutex>
#include <typeinfo>

namespace numbering {

KesNumberingRules* KesNumberingRules::instance = nullptr;
KesNumberingConfig* KesNumberingRules::config = nullptr;
Logger* KesNumberingRules::logger = Logger::getLogger(typeid(KesNumberingRules).name());

std::string KesNumberingRules::TELEPHONENUMBER_SPECIAL_CHARACTER = "*#ABCD";
std::string KesNumberingRules::TELEPHONENUMBER_FORMAT_CHARACTER = " ()-.";

// The class has no virtual destructor; the singleton is always made by getInstance() as a
// KesNumberingRules itself, so the destructor called here is the right one.
template <> void Singleton<KesNumberingRules>::destroyObject(KesNumberingRules* gone) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdelete-non-virtual-dtor"
    delete gone;
#pragma GCC diagnostic pop
}

namespace {

/// A reloaded generation keeps `files`, every file it may need as they are now, and builds its store
/// from them at once: plans and strategies are still made on first use, from those files.
void activate(Generation& fresh, std::unique_ptr<const FileSnapshot> files) {
    fresh.takeFiles(std::move(files));
    storeOf(fresh);
}

void readAtReload(Generation& fresh) {
    activate(fresh, readConfigurationFiles(fresh.directory));
}

/// readAtReload, but the files read are checked first, and refused with an error.
void readCheckedAtReload(Generation& fresh) {
    std::unique_ptr<const FileSnapshot> files = readConfigurationFiles(fresh.directory);
    KesConfigurationReport report = configcheck::checkFiles(fresh.directory, *files);
    if (report.status() == static_cast<int>(KesConfigurationFinding::Severity::Error))
        throw KesConfigurationRejected(fresh.directory, std::move(report));
    activate(fresh, std::move(files));
}

} // namespace

KesNumberingRules* KesNumberingRules::getInstance() {
    return &Generation::facade().getOrMake([] { return new KesNumberingRules(); }, [] { return true; });
}

void KesNumberingRules::resetInstance() {
    if (Logger::m_Traces)
        logger->debug("Releasing resources");
    std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
    KesCNPManager::resetInstance();
    KesDialableManager::resetInstance();
    KesNumberingConfig::resetInstance();
    std::vector<KesNumberingConfig**>& storeShownAt = Singleton<KesNumberingConfig>::alsoShownAt();
    storeShownAt.erase(std::remove(storeShownAt.begin(), storeShownAt.end(), &config), storeShownAt.end());
    config = nullptr;
    Generation::facade().drop();
}

void KesNumberingRules::reload() {
    Generation::reload(nullptr, readAtReload);
}

void KesNumberingRules::reload(const std::string& configDirectory) {
    Generation::reload(&configDirectory, readAtReload);
}

void KesNumberingRules::reload(const std::string& configDirectory, ReloadPolicy policy) {
    Generation::reload(&configDirectory,
                       policy == ReloadPolicy::RefuseErrors ? readCheckedAtReload : readAtReload);
}

void KesNumberingRules::reload(ReloadPolicy policy) {
    Generation::reload(nullptr, policy == ReloadPolicy::RefuseErrors ? readCheckedAtReload : readAtReload);
}

KesNumberingRules::KesNumberingRules() {
    if (Logger::m_Traces)
        logger->debug("KesNumberingRules()");
    std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
    if (config == nullptr) {
        // From now on `config` shows the current store, as KesNumberingConfig::instance does.
        Singleton<KesNumberingConfig>::alsoShownAt().push_back(&config);
        config = KesNumberingConfig::getInstance();
    }
}

std::vector<std::string> KesNumberingRules::getCountryList() {
    const Conversion conversion;
    return storeOf(conversion.generation()).getCountryList();
}

std::string KesNumberingRules::getCountryCode(std::string countryName) {
    const Conversion conversion;
    return storeOf(conversion.generation()).getCountryCodeFromName(std::move(countryName));
}

std::string KesNumberingRules::getCountryName(std::string countryCode) {
    const Conversion conversion;
    return storeOf(conversion.generation()).getCountryName(std::move(countryCode));
}

std::string KesNumberingRules::getCountryCodeFromNumber(std::string countryNumber) {
    const Conversion conversion;
    return storeOf(conversion.generation()).getCountryCodeFromNumber(std::move(countryNumber));
}

} // namespace numbering
