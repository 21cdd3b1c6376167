#include "Configuration.h"

#include "numbering/KesNumberingConfig.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace numbering {

namespace {

std::atomic<Configuration*> currentConfiguration{nullptr};

/// Where one converting thread shows the configuration it uses. Slots are never freed: a thread
/// that ends hands its slot to the next thread that starts converting.
struct alignas(64) ReaderSlot {
    std::atomic<Configuration*> inUse{nullptr};
    std::atomic<bool> taken{true};
    ReaderSlot* next = nullptr;
};

std::atomic<ReaderSlot*> readerSlots{nullptr};

/// The calling thread's pin: read on every conversion, so kept trivial (no guard on access).
struct ReaderState {
    ReaderSlot* slot;
    Configuration* pinned;
    int depth;
    bool exiting;
};
thread_local ReaderState reader __attribute__((tls_model("initial-exec"))) = {nullptr, nullptr, 0, false};

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
/// shows it until its conversion ends; any later pin sees the new configuration.
void waitUntilUnused(const Configuration* old) {
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

Configuration& makeFirst() {
    std::lock_guard<std::recursive_mutex> lock(Configuration::lifecycle());
    if (Configuration* made = currentConfiguration.load(std::memory_order_acquire))
        return *made;
    Configuration::reload(nullptr, nullptr);
    return *currentConfiguration.load(std::memory_order_acquire);
}

} // namespace

std::recursive_mutex& Configuration::lifecycle() {
    static std::recursive_mutex mutex;
    return mutex;
}

const std::string& Configuration::startDirectory() {
    static const std::string directory = [] {
        const char* overridden = std::getenv("NUMBERING_CONFIG_DIR");
        if (overridden == nullptr || *overridden == '\0')
            return std::string("/current/tele_mnt/lib_numbering/");
        return withSlash(overridden);
    }();
    return directory;
}

std::string Configuration::chosenDirectory() {
    std::lock_guard<std::recursive_mutex> lock(lifecycle());
    const std::string& chosen = lastChosenDirectory();
    return chosen.empty() ? startDirectory() : chosen;
}

Configuration::Configuration(const std::string& configurationDirectory)
    : directory(configurationDirectory), store(new KesNumberingConfig(directory)) {}

Configuration::~Configuration() {
    for (int which = 0; which < CACHES; ++which)
        dropCache(static_cast<Cache>(which));
    if (KesNumberingConfig::instance == store)
        KesNumberingConfig::instance = nullptr;
    delete store;
}

void Configuration::dropCache(Cache which) {
    std::lock_guard<std::recursive_mutex> lock(lifecycle());
    if (void* object = caches[which].object.exchange(nullptr, std::memory_order_acq_rel))
        caches[which].destroy(object);
}

Configuration* Configuration::current() {
    return currentConfiguration.load(std::memory_order_acquire);
}

Configuration& Configuration::inUse() {
    if (reader.depth > 0)
        return *reader.pinned;
    if (Configuration* current = currentConfiguration.load(std::memory_order_acquire))
        return *current;
    return makeFirst();
}

void Configuration::reload(const std::string* newDirectory, void (*switched)()) {
    if (reader.depth > 0)
        throw std::logic_error("the configuration cannot be reloaded from inside a conversion");
    Configuration* old;
    {
        std::lock_guard<std::recursive_mutex> lock(lifecycle());
        if (newDirectory != nullptr)
            lastChosenDirectory() = newDirectory->empty() ? std::string() : withSlash(*newDirectory);
        Configuration* fresh = new Configuration(chosenDirectory());
        old = currentConfiguration.exchange(fresh, std::memory_order_seq_cst);
        KesNumberingConfig::instance = fresh->store;
        if (switched != nullptr)
            switched();
    }
    if (old != nullptr) {
        waitUntilUnused(old);
        std::lock_guard<std::recursive_mutex> lock(lifecycle());
        delete old;
    }
}

void Configuration::reset() {
    std::lock_guard<std::recursive_mutex> lock(lifecycle());
    delete currentConfiguration.exchange(nullptr, std::memory_order_acq_rel);
}

PinnedConfiguration::PinnedConfiguration()
    : pinned([]() -> Configuration& {
          if (reader.depth > 0) {
              ++reader.depth;
              return *reader.pinned;
          }
          if (reader.slot == nullptr)
              reader.slot = takeSlot();
          Configuration* candidate = currentConfiguration.load(std::memory_order_seq_cst);
          for (;;) {
              if (candidate == nullptr)
                  candidate = &makeFirst();
              reader.slot->inUse.store(candidate, std::memory_order_seq_cst);
              // Still current after the slot shows it: a reload that replaces it from now on waits.
              Configuration* again = currentConfiguration.load(std::memory_order_seq_cst);
              if (again == candidate)
                  break;
              candidate = again;
          }
          reader.pinned = candidate;
          reader.depth = 1;
          return *candidate;
      }()) {}

PinnedConfiguration::~PinnedConfiguration() {
    if (--reader.depth == 0) {
        reader.slot->inUse.store(nullptr, std::memory_order_release);
        reader.pinned = nullptr;
    }
}

bool PinnedConfiguration::active() {
    return reader.depth > 0;
}

} // namespace numbering
