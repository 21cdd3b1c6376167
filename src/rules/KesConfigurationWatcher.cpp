#include "numbering/KesConfigurationWatcher.h"

#include "cnp/ConfigurationFiles.h"
#include "numbering/KesConfigurationRejected.h"
#include "numbering/KesNumberingConfig.h"
#include "numbering/KesNumberingRules.h"
#include "numbering/Logger.h"

#include <Poco/Delegate.h>
#include <Poco/DirectoryWatcher.h>
#include <Poco/Path.h>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <typeinfo>

namespace numbering {

namespace {

Logger* logger = Logger::getLogger(typeid(KesConfigurationWatcher).name());

using Clock = std::chrono::steady_clock;
using Event = Poco::DirectoryWatcher::DirectoryEvent;

/// What the configuration files of `directory` look like from outside: which exist, and their
/// identity, size and times. Any write, creation, removal or replacement changes it.
std::string fingerprint(const std::string& directory, const std::set<std::string>& names) {
    std::string seen;
    for (const std::string& name : names) {
        struct stat status;
        if (::stat((directory + name).c_str(), &status) != 0) {
            seen += "-\n";
            continue;
        }
        for (const long long field :
             {static_cast<long long>(status.st_ino), static_cast<long long>(status.st_size),
              static_cast<long long>(status.st_mtim.tv_sec), static_cast<long long>(status.st_mtim.tv_nsec),
              static_cast<long long>(status.st_ctim.tv_sec), static_cast<long long>(status.st_ctim.tv_nsec)})
            seen += std::to_string(field) + ' ';
        seen += '\n';
    }
    return seen;
}

} // namespace

/// One started watch: Poco's directory watcher, whose thread reports changes, and the settle thread,
/// which reloads once they have stopped.
class KesConfigurationWatcher::Watch {
public:
    Watch(std::string watchedDirectory, std::chrono::milliseconds quietTime)
        : directory(std::move(watchedDirectory)), settleTime(quietTime) {
        const std::vector<std::string> fileNames = configurationFileNames();
        names.insert(fileNames.begin(), fileNames.end());
        // Poco's thread sets its watch up some time after it starts: a change in between is found
        // by comparing the files, once the settle time after the start has passed.
        atStart = fingerprint(directory, names);
        changedAt = Clock::now();
        poco = std::make_unique<Poco::DirectoryWatcher>(directory);
        for (Poco::BasicEvent<const Event>* event :
             {&poco->itemAdded, &poco->itemRemoved, &poco->itemModified, &poco->itemMovedFrom,
              &poco->itemMovedTo})
            *event += Poco::delegate(this, &Watch::changed);
        poco->scanError += Poco::delegate(this, &Watch::failed);
        settler = std::thread([this] { settle(); });
    }

    ~Watch() {
        poco.reset(); // joins Poco's thread: no change is reported from now on
        {
            std::lock_guard<std::mutex> lock(mutex);
            stopping = true;
        }
        wake.notify_one();
        settler.join();
    }

private:
    void changed(const void*, const Event& event) {
        if (names.count(Poco::Path(event.item.path()).getFileName()) == 0)
            return; // an editor's swap file, say
        {
            std::lock_guard<std::mutex> lock(mutex);
            changedAt = Clock::now();
            atStart.reset();
        }
        wake.notify_one();
    }

    void failed(const void*, const Poco::Exception& error) {
        logger->error("Cannot watch the configuration of " + directory + ": " + error.displayText());
    }

    void settle() {
        std::unique_lock<std::mutex> lock(mutex);
        while (!stopping) {
            if (!changedAt) {
                wake.wait(lock);
                continue;
            }
            const Clock::time_point quietFrom = *changedAt + settleTime;
            if (Clock::now() < quietFrom) {
                wake.wait_until(lock, quietFrom);
                continue;
            }
            changedAt.reset();
            const std::optional<std::string> before = std::move(atStart);
            atStart.reset();
            lock.unlock();
            if (!before || *before != fingerprint(directory, names))
                reload();
            lock.lock();
        }
    }

    void reload() {
        try {
            KesNumberingRules::reload(directory, ReloadPolicy::RefuseErrors);
            logger->info("Reloaded the configuration of " + directory + " after a change");
        } catch (const KesConfigurationRejected& refused) {
            logger->info(refused.what());
        } catch (const std::exception& e) {
            logger->error("Cannot reload the configuration of " + directory + ": " + e.what());
        }
    }

    const std::string directory;
    const std::chrono::milliseconds settleTime;
    std::set<std::string> names; // the configuration files: changes of other files do not count

    std::mutex mutex; // guards what follows
    std::condition_variable wake;
    std::optional<Clock::time_point> changedAt; // the last change not yet reloaded
    std::optional<std::string> atStart;         // the files at the start, until a change is reported
    bool stopping = false;

    std::unique_ptr<Poco::DirectoryWatcher> poco;
    std::thread settler;
};

KesConfigurationWatcher::KesConfigurationWatcher(std::string watchedDirectory,
                                                 std::chrono::milliseconds settle)
    : directory(std::move(watchedDirectory)), settleTime(settle) {}

KesConfigurationWatcher::~KesConfigurationWatcher() {
    stop();
}

void KesConfigurationWatcher::start() {
    if (watch)
        return;
    std::string watched = directory.empty() ? KesNumberingConfig::configDirectory() : directory;
    if (watched.back() != '/')
        watched += '/';
    watch = std::make_unique<Watch>(std::move(watched), settleTime);
}

void KesConfigurationWatcher::stop() {
    watch.reset();
}

bool KesConfigurationWatcher::running() const {
    return watch != nullptr;
}

} // namespace numbering
