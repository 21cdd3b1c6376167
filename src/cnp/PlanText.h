#ifndef NUMBERING_CNP_PLANTEXT_H
#define NUMBERING_CNP_PLANTEXT_H

// Text helpers shared by the country plans. They work on views so that a conversion allocates only
// its result.

#include "numbering/KesDialRulesItem.h"

#include <string>
#include <string_view>

namespace numbering {
namespace plantext {

inline bool beginsWith(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && text.compare(0, prefix.size(), prefix) == 0;
}

/// "+" countryNumber " (" area ") " subscriber, built in one allocation.
inline std::string canonicalNumber(std::string_view countryNumber, std::string_view area,
                                   std::string_view subscriber) {
    std::string result;
    result.reserve(countryNumber.size() + area.size() + subscriber.size() + 5);
    result.append("+").append(countryNumber).append(" (").append(area).append(") ").append(subscriber);
    return result;
}

/// operation + "('" + number + "', '" + rules + "')": the opening trace of a plan's operations.
/// Build it only when tracing is on.
inline std::string callTrace(const char* operation, const std::string& number, KesDialRulesItem* rules) {
    return std::string(operation) + "('" + number + "', '" + rules->ToString() + "')";
}

/// The text every plan traces on entry: "dlr_Country_MakeCanonicalNumber('<number>', '<rules>')".
inline std::string entryTrace(const std::string& number, KesDialRulesItem* rules) {
    return callTrace("dlr_Country_MakeCanonicalNumber", number, rules);
}

} // namespace plantext
} // namespace numbering

#endif
