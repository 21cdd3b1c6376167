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
#include <fcntl.h>
#include <mutex>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <typeinfo>
#include <unistd.h>

namespace numbering {

namespace {

Logger* logger = Logger::getLogger(typeid(KesConfigurationWatcher).name());

using Clock = std::chrono::steady_clock;
using Event = Poco::DirectoryWatcher::DirectoryEvent;

/// How often an idle watch looks whether its directory was replaced as a whole.
const std::chrono::seconds RECHECK(1);

/// A directory held open: its inode stays its own while held, even once the directory is removed,
/// so that a directory made in its place never passes for it.
class HeldDirectory {
public:
    explicit HeldDirectory(const std::string& path)
        : fd(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~HeldDirectory() {
        if (fd >= 0)
            ::close(fd);
    }
    HeldDirectory(const HeldDirectory&) = delete;
    HeldDirectory& operator=(const HeldDirectory&) = delete;

    bool isOpen() const { return fd >= 0; }

    /// Whether `path` no longer names this directory. One that could not be opened never is.
    bool replacedAt(const std::string& path) const {
        struct stat held, named;
        if (!isOpen() || ::fstat(fd, &held) != 0)
            return false;
        return ::stat(path.c_str(), &named) != 0 || held.st_dev != named.st_dev ||
               held.st_ino != named.st_ino;
    }

private:
    const int fd;
};

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
        held = std::make_unique<HeldDirectory>(directory);
        poco = pocoWatcher();
        settler = std::thread([this] { settle(); });
    }

    ~Watch() {
        {
            std::lock_guard<std::mutex> lock(mutex);
            stopping = true;
        }
        wake.notify_one();
        settler.join(); // the settle thread is the only other one that replaces Poco's watcher
        poco.reset();   // joins Poco's thread
    }

private:
    /// Poco's watch of the directory as it is now, reporting to this one.
    std::unique_ptr<Poco::DirectoryWatcher> pocoWatcher() {
        auto watcher = std::make_unique<Poco::DirectoryWatcher>(directory);
        for (Poco::BasicEvent<const Event>* event :
             {&watcher->itemAdded, &watcher->itemRemoved, &watcher->itemModified, &watcher->itemMovedFrom,
              &watcher->itemMovedTo})
            *event += Poco::delegate(this, &Watch::changed);
        watcher->scanError += Poco::delegate(this, &Watch::failed);
        return watcher;
    }

    /// An installer may replace the directory as a whole (a new one renamed into place, removed and
    /// made again, a link on its path switched): the system's watch stays on the old one. The new
    /// one is watched, and its files count as changed. Called without the lock: the old watcher's
    /// thread, which is joined here, may be waiting for it.
    void watchAgainIfReplaced() {
        if (!held->replacedAt(directory))
            return;
        auto replacement = std::make_unique<HeldDirectory>(directory);
        if (!replacement->isOpen())
            return; // not there (yet): looked at again in a moment
        try {
            poco = pocoWatcher();
        } catch (const Poco::Exception&) {
            return; // gone again
        }
        held = std::move(replacement);
        std::lock_guard<std::mutex> lock(mutex);
        changedAt = Clock::now();
        atStart.reset();
    }

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
                if (wake.wait_for(lock, RECHECK) == std::cv_status::timeout && !stopping) {
                    lock.unlock();
                    watchAgainIfReplaced();
                    lock.lock();
                }
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

    std::unique_ptr<HeldDirectory> held; // the directory Poco's watcher watches
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
