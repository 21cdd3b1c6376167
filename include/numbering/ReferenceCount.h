#ifndef NUMBERING_REFERENCECOUNT_H
#define NUMBERING_REFERENCECOUNT_H

namespace numbering {

/// The intrusive reference count of the library's shared objects (held in Poco::AutoPtr).
/// A member of this type gives its owner a count of 1 at construction and keeps the owner's
/// static live-instance counter `Owner::_count` up to date.
/// The reference count is plain, not atomic: shared objects are built before concurrent use and
/// only read afterwards. The live-instance counter is a plain int too, but conversions on several
/// threads make and drop objects (caller identities) at once, so it moves with relaxed atomic steps.
template <class Owner> class ReferenceCount {
public:
    ReferenceCount() noexcept { __atomic_add_fetch(&Owner::_count, 1, __ATOMIC_RELAXED); }
    /// A copied object is a new instance with its own single reference.
    ReferenceCount(const ReferenceCount&) noexcept {
        __atomic_add_fetch(&Owner::_count, 1, __ATOMIC_RELAXED);
    }
    /// Assignment leaves the references of the assigned object as they are.
    ReferenceCount& operator=(const ReferenceCount&) noexcept { return *this; }
    ~ReferenceCount() { __atomic_sub_fetch(&Owner::_count, 1, __ATOMIC_RELAXED); }

    /// One more reference.
    void duplicate() noexcept { ++references; }
    /// True when the last reference went: the owner then deletes itself.
    bool release() noexcept { return --references == 0; }
    /// The references held.
    int count() const noexcept { return references; }

private:
    int references = 1;
};

} // namespace numbering

#endif
