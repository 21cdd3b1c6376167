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
    KesClid();
    KesClid(std::string number, KesEnumOrigin* origin);
    virtual ~KesClid();

    virtual void setNumber(std::string number);
    virtual void setOrigin(KesEnumOrigin* origin);
    virtual std::string getNumber();
    virtual KesEnumOrigin* getOrigin();
    virtual void duplicate();
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
