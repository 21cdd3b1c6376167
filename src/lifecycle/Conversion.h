#ifndef NUMBERING_SRC_LIFECYCLE_CONVERSION_H
#define NUMBERING_SRC_LIFECYCLE_CONVERSION_H

// What one conversion works with: the generation it pinned at its public entry point, handed down
// to every step that needs the store, a cache or a file. A pin is a hazard pointer: each thread
// that converts owns a slot (on a cache line of its own) where it shows the generation it uses,
// and a reload waits until no slot shows the one it replaced. Pinning costs two atomic operations
// on the thread's own slot and takes no lock. A conversion that calls another public one, or a log
// sink that converts, shares the outermost pin.

#include "Generation.h"

namespace numbering {

class Conversion {
public:
    /// Pins the current generation (made, with nothing loaded, on first use) until destroyed.
    Conversion();
    /// Works with `owner`, the generation of the plan or strategy that asks, which outlives it;
    /// pins the current one when `owner` is null (an object a host made by itself).
    explicit Conversion(Generation* owner);
    ~Conversion();
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    Generation& generation() const { return pinned; }

    /// The generation the calling thread's conversion pinned, or null outside a conversion.
    static Generation* pinnedByThread();

private:
    static Generation& pin();

    Generation& pinned;
    bool pinning; // false when working with an owner's generation
};

/// While a cache makes a plan or strategy: the generation it is made for, which the object's
/// constructor takes as its owner. Objects made otherwise (by a host) have none.
class MakingFor {
public:
    explicit MakingFor(Generation& generation);
    ~MakingFor();
    MakingFor(const MakingFor&) = delete;
    MakingFor& operator=(const MakingFor&) = delete;

    /// The generation of the object being made on this thread, or null.
    static Generation* owner();

private:
    Generation* outer;
};

} // namespace numbering

#endif
