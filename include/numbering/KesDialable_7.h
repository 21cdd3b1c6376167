#ifndef NUMBERING_KESDIALABLE_7_H
#define NUMBERING_KESDIALABLE_7_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of Russia (calling code 7). A national number gets the long-distance
/// prefix only when it then makes exactly eleven digits, the length of a complete national
/// number with its prefix; anything else is dialled as it stands.
class NUMBERING_API KesDialable_7 : public KesDialable {
public:
    KesDialable_7();

    /// Takes the prefix from the "RU" row of the dialing rules, not from `countryRule`.
    std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                           KesCountryRuleItem* countryRule,
                                           KesDialRulesItem* dialRules) override;

    /// The strategy's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
