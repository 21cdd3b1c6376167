#ifndef NUMBERING_KESCLID_H
#define NUMBERING_KESCLID_H

#include "numbering/Export.h"
#include "numbering/KesEnumOrigin.h"
#include "numbering/ReferenceCount.h"

#include <string>

namespace numbering {

/// A caller line identity: the number to present and where the caller stands.
/// Reference counted; whoever receives one from the library owns its first reference.
class NUMBERING_API KesClid {
public:
    /// An empty number of origin ANY.
    KesClid();
    /// `number` of `origin` (one of the static KesEnumOrigin values).
    KesClid(std::string number, KesEnumOrigin* origin);
    virtual ~KesClid();

    /// Replaces the number.
    virtual void setNumber(std::string number);
    /// Replaces the origin; `origin` is one of the static KesEnumOrigin values.
    virtual void setOrigin(KesEnumOrigin* origin);
    /// The number to present: digits without a "+", or a number left as it was received.
    virtual std::string getNumber();
    /// Where the caller stands: compare with the addresses of the KesEnumOrigin values.
    virtual KesEnumOrigin* getOrigin();
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();

    /// Live instances, for leak diagnostics.
    static int _count;

private:
    std::string number;
    KesEnumOrigin* origin; // not owned: one of the static origins
    ReferenceCount<KesClid> references;
};

} // namespace numbering

#endif
