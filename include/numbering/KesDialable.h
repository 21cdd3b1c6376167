#ifndef NUMBERING_KESDIALABLE_H
#define NUMBERING_KESDIALABLE_H

#include "numbering/Export.h"
#include "numbering/ReferenceCount.h"

#include <string>

class Logger;

namespace numbering {

class Generation;
class KesCountryRuleItem;
class KesDialRulesItem;

/// A dialing strategy: turns the fields of a canonical number (country calling code, area code or
/// national prefix, subscriber number) into the digits to dial from the installation's country.
/// This generic strategy follows the installation country's rule letters: "E" puts the country
/// code, "F" the prefix and the area code, "I" the prefix alone. Countries whose dialing the
/// letters cannot express have subclasses. The country rule passed is always the installation's.
class NUMBERING_API KesDialable {
public:
    /// The generic strategy, with one reference held by the caller.
    KesDialable();
    virtual ~KesDialable();

    /// A number of another country: the installation's international prefix, then the destination's
    /// calling code `country` under an "E" rule, then under an "F" rule the area code (empty when it
    /// is only the destination's national prefix), then `number`. Never fails.
    virtual std::string makeInternationalDialableNumber(std::string& country, std::string& areaNatPfx,
                                                        std::string& number, KesCountryRuleItem* countryRule);
    /// A number of the installation's country outside its own areas: `number` shaped by the
    /// long-distance rule ("F" prefix and area code, "I" prefix alone, empty: the number alone).
    virtual std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                   KesCountryRuleItem* countryRule,
                                                   KesDialRulesItem* dialRules);
    /// A number inside the installation's own areas, shaped by the local rule as
    /// makeLongDistDialableNumber is by the long-distance one.
    virtual std::string makeLocalDialableNumber(std::string& areaNatPfx, std::string& number,
                                                KesCountryRuleItem* countryRule);
    /// Takes one more reference.
    virtual void duplicate();
    /// Drops one reference; the last one deletes the object.
    virtual void release();
    /// The operator (carrier) prefix that `number` begins with; none in the generic strategy.
    virtual std::string extractOperatorPrefix(std::string number);

    /// Live strategies of every country, for leak diagnostics.
    static int _count;
    /// The strategy's traces.
    static Logger* logger;

protected:
    /// Puts `prefix` in front of `result` unless `result` already begins with it or with a leading
    /// part of it, which is completed rather than doubled ("0" and "01234" stay "01234").
    static void mergePrefix(std::string& result, const std::string& prefix);
    /// The area field of an international number: empty when it is exactly the destination country's
    /// national prefix (a canonical number that carries it in place of an area code), else unchanged.
    void dropDestinationNationalPrefix(const std::string& country, std::string& areaNatPfx) const;

    /// The configuration this strategy reads its file and the dialing rules from; null when a host
    /// made it, which then reads the configuration current when it needs one.
    Generation* const owner;

private:
    std::string applyRule(const std::string& rule, const std::string& prefix, const std::string& areaNatPfx,
                          const std::string& number) const;

    ReferenceCount<KesDialable> references;
};

} // namespace numbering

#endif
