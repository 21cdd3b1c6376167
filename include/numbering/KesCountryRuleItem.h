#ifndef NUMBERING_KESCOUNTRYRULEITEM_H
#define NUMBERING_KESCOUNTRYRULEITEM_H

#include "numbering/ReferenceCount.h"

#include <string>

namespace numbering {

/// One country's dialling facts, one row of the dialing rules file. Immutable once built.
/// The long-distance and local prefixes are derived from their rules: what stands before the
/// first "F" of the rule, else before its first "I", else nothing.
class KesCountryRuleItem {
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
