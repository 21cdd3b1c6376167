#ifndef NUMBERING_KESDIALABLE_61_H
#define NUMBERING_KESDIALABLE_61_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of Australia (calling code 61). National numbers are dialled with a
/// literal "0" in front, except the "1" service numbers and numbers that already carry the "0".
class NUMBERING_API KesDialable_61 : public KesDialable {
public:
    KesDialable_61();

    std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                           KesCountryRuleItem* countryRule,
                                           KesDialRulesItem* dialRules) override;

    /// The strategy's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
