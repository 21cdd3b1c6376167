#ifndef NUMBERING_SRC_LIFECYCLE_TEXTKEYMAP_H
#define NUMBERING_SRC_LIFECYCLE_TEXTKEYMAP_H

// The map of the configuration store and of the plan and strategy caches: text keys (country codes,
// calling codes, names) to values, grown one entry at a time and never shrunk. Entries never move
// or change once added, so readers look keys up without a lock while one writer at a time adds
// more: a look-up is a hash and a short probe in an open-addressing table that is published
// atomically, and a table outgrown by an insertion stays alive (for readers still in it) until the
// map goes.

#include <Poco/AutoPtr.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace numbering {

template <class Value> class TextKeyMap {
public:
    TextKeyMap() = default;
    TextKeyMap(const TextKeyMap&) = delete;
    TextKeyMap& operator=(const TextKeyMap&) = delete;

    /// The value of `key`, or null. Safe on any thread, also while a writer inserts.
    Value* find(std::string_view key) const {
        const Table* current = table.load(std::memory_order_acquire);
        if (current == nullptr)
            return nullptr;
        const std::uint64_t head = headOf(key);
        const std::uint64_t hash = hashOf(key, head);
        for (std::size_t i = hash & current->mask;; i = (i + 1) & current->mask) {
            Entry* entry = current->slots[i].load(std::memory_order_acquire);
            if (entry == nullptr)
                return nullptr;
            // Keys of up to eight characters are told apart by their head, without a comparison call.
            if (entry->hash == hash && entry->head == head && entry->key.size() == key.size() &&
                (key.size() <= 8 || entry->key.compare(8, std::string::npos, key.substr(8)) == 0))
                return &entry->value;
        }
    }

    /// Adds `key` with `value` unless the key is there already: the earlier entry stays. Returns the
    /// value the map holds for `key`. Writers are serialised by the map's owner.
    Value& insert(std::string_view key, Value value) {
        if (Value* found = find(key))
            return *found;
        const std::uint64_t head = headOf(key);
        Entry& entry =
            entries.emplace_back(Entry{std::string(key), std::move(value), hashOf(key, head), head});
        const Table* current = table.load(std::memory_order_relaxed);
        if (current == nullptr || entries.size() * 2 > current->mask + 1)
            current = grow();
        else
            place(*current, &entry, std::memory_order_release);
        return entry.value;
    }

    /// Calls `visit(key, value)` for every entry, in the order of insertion. Not while a writer inserts.
    template <class Visit> void forEach(Visit visit) const {
        for (const Entry& entry : entries)
            visit(std::string_view(entry.key), entry.value);
    }

    std::size_t size() const { return entries.size(); }

private:
    struct Entry {
        std::string key;
        Value value;
        std::uint64_t hash;
        std::uint64_t head; // the first eight characters, zero-filled
    };
    struct Table {
        explicit Table(std::size_t size) : mask(size - 1), slots(new std::atomic<Entry*>[size]) {
            for (std::size_t i = 0; i < size; ++i)
                slots[i].store(nullptr, std::memory_order_relaxed);
        }
        std::size_t mask;
        std::unique_ptr<std::atomic<Entry*>[]> slots;
    };

    /// Up to eight characters from `from`, packed into the low bytes (no library call for a few bytes).
    static std::uint64_t packed(std::string_view key, std::size_t from) {
        std::uint64_t word = 0;
        const std::size_t end = key.size() - from < 8 ? key.size() : from + 8;
        for (std::size_t i = from; i < end; ++i)
            word |= static_cast<std::uint64_t>(static_cast<unsigned char>(key[i])) << (8 * (i - from));
        return word;
    }

    static std::uint64_t headOf(std::string_view key) { return packed(key, 0); }

    /// The key's hash, from its head (a key of up to eight characters, the usual code, is read once)
    /// and each further eight characters.
    static std::uint64_t hashOf(std::string_view key, std::uint64_t head) {
        std::uint64_t hash = mixed(0x9E3779B97F4A7C15ull ^ key.size(), head);
        for (std::size_t i = 8; i < key.size(); i += 8)
            hash = mixed(hash, packed(key, i));
        return hash;
    }

    static std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
        hash = (hash ^ word) * 0xFF51AFD7ED558CCDull;
        return hash ^ (hash >> 32);
    }

    static void place(const Table& into, Entry* entry, std::memory_order order) {
        std::size_t i = entry->hash & into.mask;
        while (into.slots[i].load(std::memory_order_relaxed) != nullptr)
            i = (i + 1) & into.mask;
        into.slots[i].store(entry, order);
    }

    /// A table twice the size of the entries, filled and then published.
    const Table* grow() {
        std::size_t size = 16;
        while (size < entries.size() * 2)
            size *= 2;
        Table& grown = *tables.emplace_back(new Table(size));
        for (Entry& entry : entries)
            place(grown, &entry, std::memory_order_relaxed);
        table.store(&grown, std::memory_order_release);
        return &grown;
    }

    std::deque<Entry> entries;                  // grows at the end; elements never move
    std::vector<std::unique_ptr<Table>> tables; // the last is in use, the others kept for readers
    std::atomic<const Table*> table{nullptr};
};

/// The object cached under `key` in `cache`, else what `load` builds and caches under `mutex`: the
/// plan and strategy caches look up without a lock once an object is cached, and build each one once.
template <class Object, class Mutex, class Load>
Object* findOrLoad(TextKeyMap<Poco::AutoPtr<Object>>& cache, Mutex& mutex, std::string_view key, Load load) {
    if (Poco::AutoPtr<Object>* cached = cache.find(key))
        return cached->get();
    typename Mutex::ScopedLock lock(mutex);
    if (Poco::AutoPtr<Object>* cached = cache.find(key))
        return cached->get();
    return load();
}

} // namespace numbering

#endif
