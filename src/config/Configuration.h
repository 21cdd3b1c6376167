#ifndef NUMBERING_SRC_CONFIG_CONFIGURATION_H
#define NUMBERING_SRC_CONFIG_CONFIGURATION_H

// One loaded configuration: the directory it was read from, the store built from its files, and
// the caches of plans and strategies built from that store. The library keeps one current
// configuration; a reload builds a new one, makes it current at once, and frees the old one when
// no conversion uses it any more. A conversion pins the configuration it starts on for its whole
// length (nested conversions included), so that it never mixes two: everything it reaches, the
// store, the caches and the file names of a plan it builds, comes from the pinned configuration.
//
// The pins are hazard pointers: each thread that converts owns a slot (on a cache line of its
// own) where it publishes the configuration it uses; a reload waits until no slot shows the old
// one. Pinning costs two atomic operations on the thread's own slot, and nothing is locked.

#include <atomic>
#include <mutex>
#include <string>

namespace numbering {

class KesNumberingConfig;

class Configuration {
public:
    /// The caches built on top of the store, torn down in this order before the store goes.
    enum Cache { PLANS, STRATEGIES, CACHES };

    /// The directory, with its trailing "/", that file names are built from.
    const std::string directory;
    KesNumberingConfig* const store;

    /// The cache `which`, made by `make()` on first use, once, whichever threads ask at the same
    /// time; `current` shows it when this configuration is the current one. `Object` is the
    /// cache's class; `make` may call its private constructor.
    template <class Object, class Make> Object* cache(Cache which, Object*& current, Make make) {
        if (void* made = caches[which].object.load(std::memory_order_acquire))
            return static_cast<Object*>(made);
        std::lock_guard<std::recursive_mutex> lock(lifecycle());
        if (void* made = caches[which].object.load(std::memory_order_relaxed))
            return static_cast<Object*>(made);
        Object* object = make();
        if (this == Configuration::current())
            current = object;
        caches[which].destroy = [](void* made) { delete static_cast<Object*>(made); };
        caches[which].object.store(object, std::memory_order_release);
        return object;
    }
    /// Tears the cache `which` down, if it was made (only when no conversion runs).
    void dropCache(Cache which);

    /// The configuration the calling thread's conversion has pinned, else the current one, made
    /// from the files on first use.
    static Configuration& inUse();
    /// The current configuration, or null when none is loaded (nothing is made).
    static Configuration* current();
    /// Builds a new configuration from `directory` (the directory chosen last when null), makes it
    /// current, calls `switched` (if any) still under the lifecycle lock, then frees the one it
    /// replaces once no conversion uses it. Throws std::logic_error inside a conversion, which
    /// would wait for itself.
    static void reload(const std::string* directory, void (*switched)());
    /// Frees the current configuration (only when no conversion runs).
    static void reset();
    /// The directory the next configuration is read from: the last one chosen by a reload, else
    /// NUMBERING_CONFIG_DIR as it was when the library was loaded, else "/current/tele_mnt/lib_numbering/".
    static std::string chosenDirectory();
    /// The directory of the library's start (NUMBERING_CONFIG_DIR or the fixed one).
    static const std::string& startDirectory();

    /// Serialises the making and freeing of configurations and singletons. Recursive: a singleton
    /// made under it may make the configuration it needs.
    static std::recursive_mutex& lifecycle();

private:
    explicit Configuration(const std::string& configurationDirectory);
    ~Configuration();
    Configuration(const Configuration&) = delete;
    Configuration& operator=(const Configuration&) = delete;

    struct Slot {
        std::atomic<void*> object{nullptr};
        void (*destroy)(void*) = nullptr;
    };
    Slot caches[CACHES];

    friend class PinnedConfiguration;
};

/// Pins the configuration in use for the life of the object; nested pins share the outermost one.
class PinnedConfiguration {
public:
    PinnedConfiguration();
    ~PinnedConfiguration();
    PinnedConfiguration(const PinnedConfiguration&) = delete;
    PinnedConfiguration& operator=(const PinnedConfiguration&) = delete;

    Configuration& configuration() const { return pinned; }
    KesNumberingConfig* store() const { return pinned.store; }

    /// Whether the calling thread is inside a pinned conversion.
    static bool active();

private:
    Configuration& pinned;
};

} // namespace numbering

#endif
