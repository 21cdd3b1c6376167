#ifndef NUMBERING_KESCNP_H
#define NUMBERING_KESCNP_H

#include "numbering/Export.h"
#include "numbering/ReferenceCount.h"

#include <string>

namespace numbering {

class Generation;
class KesDialRulesItem;

/// A country numbering plan: knows which leading digits of a national number form an area code
/// and writes national numbers in canonical form. A plan never fails: a number it cannot place
/// comes back unchanged. Plans are made by KesCNPFactory and cached by KesCNPManager.
class NUMBERING_API KesCNP {
public:
    /// A plan made by KesCNPManager belongs to the manager's configuration; one made otherwise reads
    /// the configuration current when it needs one.
    KesCNP();
    virtual ~KesCNP();

    /// The canonical form of `number` (digits as dialled at the installation described by `rules`),
    /// or `number` unchanged. `rules` must not be null.
    virtual std::string dlr_Country_MakeCanonicalNumber(std::string number, KesDialRulesItem* rules) = 0;
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();

    /// Live plans of every country, for leak diagnostics.
    static int _count;

protected:
    /// The configuration this plan reads its file and the dialing rules from; null when a host made it.
    Generation* const owner;

private:
    ReferenceCount<KesCNP> references;
};

} // namespace numbering

#endif
