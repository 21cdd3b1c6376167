#ifndef NUMBERING_KESCONFIGURATIONWATCHER_H
#define NUMBERING_KESCONFIGURATIONWATCHER_H

#include "numbering/Export.h"

#include <chrono>
#include <memory>
#include <string>

namespace numbering {

/// Picks up the installer's edits of the configuration directory, if the host asks for it. Once
/// started, it notices every change of a configuration file there (written, created, removed,
/// renamed), waits until the files have been quiet for the settle time (an editor saves in several
/// steps), then calls KesNumberingRules::reload(directory, ReloadPolicy::RefuseErrors) and logs one
/// info line: "Reloaded the configuration of DIRECTORY after a change", or the refusal
/// (KesConfigurationRejected::what(): the first error and the count of the other findings), after
/// which the running configuration stays and the next change is tried again. A directory replaced
/// as a whole (a new one renamed into its place, removed and made again, or a link on its path
/// switched to another release) is watched again within about a second, and its files count as
/// changed.
///
/// Constructing it starts nothing; start() starts two threads (the directory watch and the settle
/// timer), stop() or the destructor ends them. Changes made while it is stopped are not picked up.
/// start() and stop() are called by one thread at a time, never from a log sink.
///
/// @code
/// numbering::KesConfigurationWatcher watcher("/etc/numbering/");
/// watcher.start(); // from now on, a saved edit is live about two seconds later, unless it has errors
/// // ...
/// watcher.stop();
/// @endcode
class NUMBERING_API KesConfigurationWatcher {
public:
    /// A watcher of `directory` (the configuration directory in use at start() when empty), which
    /// reloads once the files have been quiet for `settleTime`. Starts nothing.
    explicit KesConfigurationWatcher(std::string directory = std::string(),
                                     std::chrono::milliseconds settleTime = std::chrono::seconds(2));
    /// Stops the watcher.
    ~KesConfigurationWatcher();
    KesConfigurationWatcher(const KesConfigurationWatcher&) = delete;
    KesConfigurationWatcher& operator=(const KesConfigurationWatcher&) = delete;

    /// Starts watching; does nothing when it watches already. Throws Poco::FileNotFoundException
    /// when the directory does not exist, and another Poco::Exception when it cannot be watched.
    void start();
    /// Stops watching, promptly even while a change waits for the settle time (that change is then
    /// not reloaded); a reload already under way is finished first. Returns once the watcher's
    /// threads have ended; does nothing when it is stopped.
    void stop();
    /// Whether it is started.
    bool running() const;

private:
    class Watch;
    std::string directory;
    std::chrono::milliseconds settleTime;
    std::unique_ptr<Watch> watch; // present while started
};

} // namespace numbering

#endif
