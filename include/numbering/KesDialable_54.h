#ifndef NUMBERING_KESDIALABLE_54_H
#define NUMBERING_KESDIALABLE_54_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of Argentina (calling code 54). The Argentine plan splits a national
/// number into area code, subscriber number and mobile flag; a mobile is dialled with "15" before
/// the subscriber number, and a number outside the installation's area with the long-distance
/// prefix and the area code in front.
class NUMBERING_API KesDialable_54 : public KesDialable {
public:
    KesDialable_54();

    std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                           KesCountryRuleItem* countryRule,
                                           KesDialRulesItem* dialRules) override;
    using KesDialable::makeLocalDialableNumber;
    /// The Argentine local form. A separate overload: numbers inside the installation's own areas
    /// still reach the generic three-argument form, kept so on purpose.
    virtual std::string makeLocalDialableNumber(std::string& areaNatPfx, std::string& number,
                                                KesCountryRuleItem* countryRule, KesDialRulesItem* dialRules);

    /// Both Argentine forms: area + number split by the plan of "AR", or returned as they stand
    /// when the plan cannot split them.
    std::string MakeLocalOrLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                                  KesCountryRuleItem* countryRule,
                                                  KesDialRulesItem* dialRules);

    /// The strategy's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
