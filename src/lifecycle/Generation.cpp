#include "Generation.h"

#include "Conversion.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace numbering {

namespace {

std::atomic<Generation*> currentGeneration{nullptr};

/// Where one converting thread shows the generation it uses. Slots are never freed: a thread that
/// ends hands its slot to the next thread that starts converting.
struct alignas(64) ReaderSlot {
    std::atomic<Generation*> inUse{nullptr};
    std::atomic<bool> taken{true};
    ReaderSlot* next = nullptr;
};

std::atomic<ReaderSlot*> readerSlots{nullptr};

/// The calling thread's pin: read on every conversion, so kept trivial (no guard on access).
struct ReaderState {
    ReaderSlot* slot;
    Generation* pinned;
    int depth;
    bool exiting;
    Generation* makingFor;
};
thread_local ReaderState reader
    __attribute__((tls_model("initial-exec"))) = {nullptr, nullptr, 0, false, nullptr};

/// Gives the thread's slot back when the thread ends.
struct SlotReturn {
    ~SlotReturn() {
        if (reader.slot != nullptr)
            reader.slot->taken.store(false, std::memory_order_release);
        reader.slot = nullptr;
        reader.exiting = true;
    }
};

ReaderSlot* takeSlot() {
    if (!reader.exiting) {
        thread_local SlotReturn giveBack; // registers the hand-back for this thread's end
        (void)giveBack;
    }
    for (ReaderSlot* slot = readerSlots.load(std::memory_order_acquire); slot != nullptr; slot = slot->next) {
        bool expected = false;
        if (slot->taken.compare_exchange_strong(expected, true, std::memory_order_acquire))
            return slot;
    }
    ReaderSlot* slot = new ReaderSlot;
    slot->next = readerSlots.load(std::memory_order_relaxed);
    while (!readerSlots.compare_exchange_weak(slot->next, slot, std::memory_order_release))
        ;
    return slot;
}

/// Returns once no thread shows `old` in its slot. A thread that pinned it before it was replaced
/// shows it until its conversion ends; any later pin sees the new generation.
void waitUntilUnused(const Generation* old) {
    for (ReaderSlot* slot = readerSlots.load(std::memory_order_acquire); slot != nullptr; slot = slot->next)
        while (slot->inUse.load(std::memory_order_seq_cst) == old)
            std::this_thread::sleep_for(std::chrono::microseconds(50));
}

std::string withSlash(std::string directory) {
    if (directory.empty() || directory.back() != '/')
        directory += '/';
    return directory;
}

std::string& lastChosenDirectory() {
    static std::string chosen;
    return chosen;
}

const std::string& startDirectory() {
    static const std::string directory = [] {
        const char* overridden = std::getenv("NUMBERING_CONFIG_DIR");
        if (overridden == nullptr || *overridden == '\0')
            return std::string("/current/tele_mnt/lib_numbering/");
        return withSlash(overridden);
    }();
    return directory;
}

} // namespace

std::recursive_mutex& lifecycleMutex() {
    static std::recursive_mutex mutex;
    return mutex;
}

Generation::Generation(std::string generationDirectory) : directory(std::move(generationDirectory)) {}

Generation::~Generation() {
    // The caches before the store they were built from.
    plans.drop();
    strategies.drop();
    store.drop();
}

bool Generation::isCurrent() const {
    return currentGeneration.load(std::memory_order_acquire) == this;
}

void Generation::show(bool current) {
    store.show(current);
    plans.show(current);
    strategies.show(current);
}

std::string Generation::chosenDirectory() {
    std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
    const std::string& chosen = lastChosenDirectory();
    return chosen.empty() ? startDirectory() : chosen;
}

Generation* Generation::currentIfAny() {
    return currentGeneration.load(std::memory_order_acquire);
}

Generation& Generation::current() {
    if (Generation* current = currentGeneration.load(std::memory_order_acquire))
        return *current;
    std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
    if (Generation* current = currentGeneration.load(std::memory_order_acquire))
        return *current;
    Generation* first = new Generation(chosenDirectory());
    currentGeneration.store(first, std::memory_order_seq_cst);
    return *first;
}

void Generation::reload(const std::string* newDirectory, void (*prepare)(Generation&)) {
    if (reader.depth > 0)
        throw std::logic_error("the configuration cannot be reloaded from inside a conversion");
    Generation* old;
    {
        std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
        std::string chosen = lastChosenDirectory();
        if (newDirectory != nullptr)
            chosen = newDirectory->empty() ? std::string() : withSlash(*newDirectory);
        Generation* fresh = new Generation(chosen.empty() ? startDirectory() : chosen);
        try {
            prepare(*fresh);
        } catch (...) {
            delete fresh; // a refused directory is not chosen: the running configuration stays whole
            throw;
        }
        lastChosenDirectory() = std::move(chosen);
        old = currentGeneration.exchange(fresh, std::memory_order_seq_cst);
        if (old != nullptr)
            old->show(false);
        fresh->show(true);
    }
    if (old != nullptr) {
        waitUntilUnused(old);
        std::lock_guard<std::recursive_mutex> lock(lifecycleMutex());
        delete old;
    }
}

Singleton<KesNumberingRules>& Generation::facade() {
    static Singleton<KesNumberingRules>* facade = new Singleton<KesNumberingRules>; // never destroyed
    return *facade;
}

Generation& Conversion::pin() {
    if (reader.depth > 0) {
        ++reader.depth;
        return *reader.pinned;
    }
    if (reader.slot == nullptr)
        reader.slot = takeSlot();
    Generation* candidate = currentGeneration.load(std::memory_order_seq_cst);
    for (;;) {
        if (candidate == nullptr)
            candidate = &Generation::current();
        reader.slot->inUse.store(candidate, std::memory_order_seq_cst);
        // Still current after the slot shows it: a reload that replaces it from now on waits.
        Generation* again = currentGeneration.load(std::memory_order_seq_cst);
        if (again == candidate)
            break;
        candidate = again;
    }
    reader.pinned = candidate;
    reader.depth = 1;
    return *candidate;
}

Conversion::Conversion() : pinned(pin()), pinning(true) {}

Conversion::Conversion(Generation* owner)
    : pinned(owner != nullptr ? *owner : pin()), pinning(owner == nullptr) {}

Conversion::~Conversion() {
    if (pinning && --reader.depth == 0) {
        reader.slot->inUse.store(nullptr, std::memory_order_release);
        reader.pinned = nullptr;
    }
}

Generation* Conversion::pinnedByThread() {
    return reader.depth > 0 ? reader.pinned : nullptr;
}

MakingFor::MakingFor(Generation& generation) : outer(reader.makingFor) {
    reader.makingFor = &generation;
}

MakingFor::~MakingFor() {
    reader.makingFor = outer;
}

Generation* MakingFor::owner() {
    return reader.makingFor;
}

} // namespace numbering
