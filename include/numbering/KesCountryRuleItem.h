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
    KesCountryRuleItem(std::string countryNumber, std::string internatPfx, std::string internatRule,
                       std::string longDistRule, std::string localRule, std::string countryName);
    virtual ~KesCountryRuleItem();

    virtual std::string getCountryNumber() { return countryNumber; }
    virtual std::string getInternatPfx() { return internatPfx; }
    virtual std::string getInternatRule() { return internatRule; }
    virtual std::string getLongDistRule() { return longDistRule; }
    virtual std::string getLocalRule() { return localRule; }
    virtual std::string getLongDistPrefix() { return longDistPrefix; }
    virtual std::string getLocalDistPrefix() { return localDistPrefix; }
    virtual std::string getCountryName() { return countryName; }
    virtual void duplicate();
    virtual void release();

    // The fields themselves, for the library's conversions on the records of the configuration
    // store, which are never of a derived class: no copy, no virtual call.
    const std::string& countryNumberText() const { return countryNumber; }
    const std::string& internatPfxText() const { return internatPfx; }
    const std::string& longDistRuleText() const { return longDistRule; }
    const std::string& localRuleText() const { return localRule; }
    const std::string& longDistPrefixText() const { return longDistPrefix; }

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
