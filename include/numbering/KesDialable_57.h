#ifndef NUMBERING_KESDIALABLE_57_H
#define NUMBERING_KESDIALABLE_57_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesDialable.h"

#include <Poco/AutoPtr.h>

namespace numbering {

/// The dialing strategy of Colombia (calling code 57). Every call leaving the local area goes
/// through a carrier chosen by its operator prefix, dialled right after the national or
/// international prefix. The known operator prefixes and the default one come from
/// "tz310cnp_57.properties", read once when the strategy is made.
class NUMBERING_API KesDialable_57 : public KesDialable {
public:
    /// Reads "OP_DEFAULT" and the list "OP_0000", "OP_0001", ... up to its first gap; a missing
    /// file leaves the default operator "9" and no known operator prefix.
    KesDialable_57();
    ~KesDialable_57() override;

    /// Puts the subscriber number where the country code belongs, so that with an "E" rule the
    /// number stands twice and the country code nowhere. Kept: installations dial it this way.
    std::string makeInternationalDialableNumber(std::string& country, std::string& areaNatPfx,
                                                std::string& number,
                                                KesCountryRuleItem* countryRule) override;
    /// Long-distance prefix, then the mobile prefix for a mobile number or the operator prefix
    /// otherwise. An empty area and number throw std::out_of_range.
    std::string makeLongDistDialableNumber(std::string& areaNatPfx, std::string& number,
                                           KesCountryRuleItem* countryRule,
                                           KesDialRulesItem* dialRules) override;
    /// The longest known operator prefix that `number` begins with, or "".
    std::string extractOperatorPrefix(std::string number) override;

    static char MOBILE_OP_START_WITH;     ///< '3', the first digit of a mobile number
    static std::string MOBILE_PREFIX;     ///< "3", dialled after the prefix for a mobile number
    static std::string DEFAULT_OP_PREFIX; ///< "9", the operator when the file names none
    static std::string OP_DEFAULT_KEY;    ///< "OP_DEFAULT", the key of the default operator
    /// The strategy's traces.
    static Logger* logger;

private:
    std::string operatorPrefix;
    Poco::AutoPtr<KesAreaCodeTree> operatorTree;
};

} // namespace numbering

#endif
