#ifndef NUMBERING_SRC_CONFIG_SHORTKEYINDEX_H
#define NUMBERING_SRC_CONFIG_SHORTKEYINDEX_H

// A read-only look-up table for short text keys (country codes, calling codes), built once from
// the store's hash maps so that a conversion finds a country without hashing a std::string: the
// key is packed into one integer and found in a flat open-addressing table.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace numbering {

template <class Value> class ShortKeyIndex {
public:
    /// Keys of one to seven characters are indexed; others are left to the caller's own map.
    static bool indexable(std::string_view key) { return !key.empty() && key.size() <= 7; }

    /// Replaces the contents with `entries` (indexable keys only; the first of equal keys stays).
    void assign(const std::vector<std::pair<std::string_view, Value>>& entries) {
        std::size_t size = 16;
        while (size < entries.size() * 2)
            size *= 2;
        slots.assign(size, Slot{0, Value()});
        mask = size - 1;
        for (const auto& entry : entries) {
            const std::uint64_t key = pack(entry.first);
            std::size_t i = slotOf(key);
            while (slots[i].key != 0 && slots[i].key != key)
                i = (i + 1) & mask;
            if (slots[i].key == 0)
                slots[i] = Slot{key, entry.second};
        }
    }

    /// Replaces the contents with the indexable keys of `map` (a hash map of the store or of a
    /// cache), each with `valueOf(entry)`.
    template <class Map, class ValueOf> void assignFrom(Map& map, ValueOf valueOf) {
        std::vector<std::pair<std::string_view, Value>> entries;
        for (auto& entry : map)
            if (indexable(entry.first))
                entries.emplace_back(entry.first, valueOf(entry));
        assign(entries);
    }

    /// The value of `key` (which must be indexable), or null.
    const Value* find(std::string_view key) const {
        if (slots.empty())
            return nullptr;
        const std::uint64_t packed = pack(key);
        for (std::size_t i = slotOf(packed);; i = (i + 1) & mask) {
            if (slots[i].key == packed)
                return &slots[i].value;
            if (slots[i].key == 0)
                return nullptr;
        }
    }

private:
    struct Slot {
        std::uint64_t key; // the packed key, 0 when the slot is free
        Value value;
    };

    /// The characters in the low bytes and the length in the top one: never 0 for a key.
    static std::uint64_t pack(std::string_view key) {
        std::uint64_t packed = static_cast<std::uint64_t>(key.size()) << 56;
        for (std::size_t i = 0; i < key.size(); ++i)
            packed |= static_cast<std::uint64_t>(static_cast<unsigned char>(key[i])) << (8 * i);
        return packed;
    }

    std::size_t slotOf(std::uint64_t packed) const {
        return static_cast<std::size_t>((packed * 0x9E3779B97F4A7C15ull) >> 40) & mask;
    }

    std::vector<Slot> slots;
    std::size_t mask = 0;
};

} // namespace numbering

#endif
