#ifndef NUMBERING_SRC_LIFECYCLE_GENERATION_H
#define NUMBERING_SRC_LIFECYCLE_GENERATION_H

// How a configuration lives and dies.
//
// A generation is one configuration: the directory it reads, the files as a reload read them (if a
// reload made it), and three singletons, each made on first use and destroyed by its own
// resetInstance(): the store, the plan cache and the strategy cache. One generation is current.
// A reload makes a new generation (its store read at once, its files read into memory), makes it
// current, and frees the old one when no conversion pins it any more. A reset is allowed only when
// nothing converts: it destroys one singleton of the current generation and leaves the others (and
// their pointers, which hosts may hold) as they are; what is made again afterwards reads the disk.
// A conversion pins the current generation once, at its public entry point (see Conversion.h), and
// everything it reaches comes from that generation.

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace numbering {

class KesNumberingConfig;
class KesCNPManager;
class KesDialableManager;
class KesNumberingRules;

/// Serialises the making and destroying of generations and singletons. Recursive: a singleton made
/// under it may make another one it needs.
std::recursive_mutex& lifecycleMutex();

/// The configuration files as a reload found them: each file's text, or why it could not be read.
struct FileSnapshot {
    enum class Outcome { Read, NotFound, Unopenable };
    struct File {
        Outcome outcome;
        std::string text; // the content when read, else the reason it could not be
    };
    std::unordered_map<std::string, File> files; // by name in the directory
};

/// One singleton of a generation (or of the process, for the facade): made once on first use,
/// whichever threads ask together, and shown in the class's public `instance` while it is current.
template <class T> class Singleton {
public:
    Singleton() = default;
    Singleton(const Singleton&) = delete;
    Singleton& operator=(const Singleton&) = delete;
    ~Singleton() { drop(); }

    /// The object, or null when it is not made.
    T* get() const { return object.load(std::memory_order_acquire); }

    /// The object, made by `make()` under the lifecycle mutex when there is none. `isShown()`, asked
    /// under the same mutex (a reload may be switching generations), says whether the class's
    /// `instance` and the places of alsoShownAt() show it.
    template <class Make, class IsShown> T& getOrMake(Make make, IsShown isShown) {
        if (T* made = get())
            return *made;
        std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
        if (T* made = object.load(std::memory_order_relaxed))
            return *made;
        T* made = make();
        destroy = &destroyObject;
        publish = [](T* current) {
            T::instance = current;
            for (T** place : alsoShownAt())
                *place = current;
        };
        object.store(made, std::memory_order_release);
        show(isShown());
        return *made;
    }

    /// Destroys the object, if made, and clears what showed it (only when nothing uses it).
    void drop() {
        std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
        if (T* made = object.exchange(nullptr, std::memory_order_acq_rel)) {
            if (shown)
                publish(nullptr);
            shown = false;
            destroy(made);
        }
    }

    /// Shows the object (or null) in the class's `instance`, as its generation becomes or stops
    /// being current.
    void show(bool current) {
        if (T* made = get()) {
            publish(current ? made : nullptr);
            shown = current;
        }
    }

    /// Other statics that show the current object as `instance` does (the facade's `config`).
    static std::vector<T**>& alsoShownAt() {
        static std::vector<T**> places;
        return places;
    }

private:
    /// How the object goes: deleted as a T (specialised where a class needs otherwise).
    static void destroyObject(T* gone) { delete gone; }

    std::atomic<T*> object{nullptr};
    void (*destroy)(T*) = nullptr;
    void (*publish)(T*) = nullptr;
    bool shown = false; // whether `instance` shows the object
};

class Generation {
public:
    /// The directory, with its trailing "/", that file names are built from.
    const std::string directory;

    Singleton<KesNumberingConfig> store;
    Singleton<KesCNPManager> plans;
    Singleton<KesDialableManager> strategies;

    /// The files as the reload that made this generation read them; null when they are read from
    /// disk on first use (the generation of the library's start, or after any reset).
    const FileSnapshot* files() const { return snapshot.get(); }

    /// Whether this is the current generation (under the lifecycle mutex).
    bool isCurrent() const;

    /// The current generation, made (with nothing loaded yet) when there is none.
    static Generation& current();
    /// The current generation if there is one, for a look that must not make it.
    static Generation* currentIfAny();
    /// Makes a generation of `directory` (the directory chosen last when null), makes it current
    /// and calls `prepare` on it first (under the lifecycle mutex, before it is current), then
    /// frees the one it replaces once no conversion pins it. When `prepare` throws, nothing changes:
    /// neither the current generation nor the chosen directory. Reloads from several threads are
    /// serialised; the last one wins. Throws std::logic_error inside a conversion, which would
    /// wait for itself.
    static void reload(const std::string* directory, void (*prepare)(Generation&));
    /// A singleton's resetInstance(): destroys `which` of the current generation alone (only when
    /// nothing converts); what the generation makes again afterwards reads the disk.
    template <class T> static void reset(Singleton<T> Generation::*which) {
        std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
        if (Generation* current = currentIfAny()) {
            (current->*which).drop();
            current->snapshot.reset();
        }
    }

    /// The directory the next generation reads: the last one chosen by a reload, else
    /// NUMBERING_CONFIG_DIR as it was when the library was loaded, else "/current/tele_mnt/lib_numbering/".
    static std::string chosenDirectory();

    /// The process-wide facade: not part of any generation, it outlives reloads.
    static Singleton<KesNumberingRules>& facade();

    void takeFiles(std::unique_ptr<const FileSnapshot> files) { snapshot = std::move(files); }

private:
    explicit Generation(std::string generationDirectory);
    ~Generation();
    Generation(const Generation&) = delete;
    Generation& operator=(const Generation&) = delete;

    /// Shows this generation's singletons in their classes' statics, or stops showing them.
    void show(bool current);

    std::unique_ptr<const FileSnapshot> snapshot;

    friend class Conversion;
};

} // namespace numbering

#endif
