#ifndef NUMBERING_KESCOUNTRYRULEITEM_H
#define NUMBERING_KESCOUNTRYRULEITEM_H

#include "numbering/Export.h"
#include "numbering/ReferenceCount.h"

#include <string>

namespace numbering {

/// One country's dialling facts, one row of the dialing rules file. Immutable once built.
/// The long-distance and local prefixes are derived from their rules: what stands before the
/// first "F" of the rule, else before its first "I", else nothing.
class NUMBERING_API KesCountryRuleItem {
public:
    /// The fields of one row, in the row's order; the two prefixes are derived from the rules.
    KesCountryRuleItem(std::string countryNumber, std::string internatPfx, std::string internatRule,
                       std::string longDistRule, std::string localRule, std::string countryName);
    virtual ~KesCountryRuleItem();

    /// The calling code ("33").
    virtual std::string getCountryNumber() { return countryNumber; }
    /// The prefix dialled before a number of another country ("00").
    virtual std::string getInternatPfx() { return internatPfx; }
    /// The letters that say what follows the international prefix ("E" calling code, "F" area code).
    virtual std::string getInternatRule() { return internatRule; }
    /// How a national number outside the own area is dialled ("0F": prefix "0", then the area code).
    virtual std::string getLongDistRule() { return longDistRule; }
    /// How a number of the own area is dialled, as written in the row.
    virtual std::string getLocalRule() { return localRule; }
    /// The national prefix, from the long-distance rule ("0"), or "".
    virtual std::string getLongDistPrefix() { return longDistPrefix; }
    /// The local prefix, from the local rule, or "".
    virtual std::string getLocalDistPrefix() { return localDistPrefix; }
    /// The country's display name.
    virtual std::string getCountryName() { return countryName; }
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();

    // The fields themselves, for the library's conversions on the records of the configuration
    // store, which are never of a derived class: no copy, no virtual call.
    const std::string& countryNumberText() const { return countryNumber; }   ///< as getCountryNumber
    const std::string& internatPfxText() const { return internatPfx; }       ///< as getInternatPfx
    const std::string& longDistRuleText() const { return longDistRule; }     ///< as getLongDistRule
    const std::string& localRuleText() const { return localRule; }           ///< as getLocalRule
    const std::string& longDistPrefixText() const { return longDistPrefix; } ///< as getLongDistPrefix

    /// Records alive, for leak diagnostics.
    static int _count;

private:
    std::string countryNumber;
    std::string internatPfx;
    std::string internatRule;
    std::string longDistRule; // trimmed
    std::string localRule;    // as written
    std::string longDistPrefix;
    std::string localDistPrefix;
    std::string countryName;
    ReferenceCount<KesCountryRuleItem> references;
};

} // namespace numbering

#endif
