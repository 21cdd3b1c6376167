#ifndef NUMBERING_KESDIALABLE_52_H
#define NUMBERING_KESDIALABLE_52_H

#include "numbering/Export.h"
#include "numbering/KesDialable.h"

namespace numbering {

/// The dialing strategy of Mexico (calling code 52). A mobile number is written with "1" before
/// its area code and is dialled with "044" inside the installation's own area and "045" from
/// elsewhere; every other national number takes the long-distance prefix.
class NUMBERING_API KesDialable_52 : public KesDialable {
public:
    KesDialable_52();

    std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                           KesCountryRuleItem* countryRule,
                                           KesDialRulesItem* dialRules) override;

    static std::string PREFIX_MOBILE;         ///< "1", in front of a mobile number's area code
    static std::string PREFIX_MOBILE_LOCAL;   ///< "044", a mobile inside the installation's own area
    static std::string PREFIX_MOBILE_DISTANT; ///< "045", a mobile elsewhere
    /// The strategy's traces.
    static Logger* logger;
};

} // namespace numbering

#endif
