#ifndef NUMBERING_CNP_PLANTEXT_H
#define NUMBERING_CNP_PLANTEXT_H

// The traces the country plans write; their text tests and the writer of the canonical form are the
// shared ones of common/.

#include "common/CanonicalNumber.h"
#include "numbering/KesDialRulesItem.h"
#include "numbering/Logger.h"

#include <string>
#include <string_view>

namespace numbering {
namespace plantext {

/// operation + "('" + number + "', '" + rules + "')": the opening trace of a plan's operations.
/// Build it only when tracing is on.
inline std::string callTrace(const char* operation, const std::string& number, KesDialRulesItem* rules) {
    return std::string(operation) + "('" + number + "', '" + rules->ToString() + "')";
}

/// The text every plan traces on entry: "dlr_Country_MakeCanonicalNumber('<number>', '<rules>')".
inline std::string entryTrace(const std::string& number, KesDialRulesItem* rules) {
    return callTrace("dlr_Country_MakeCanonicalNumber", number, rules);
}

/// A plan's way in: without dialing rules the number comes back unchanged (false); otherwise the
/// entry is traced.
inline bool entered(const std::string& number, KesDialRulesItem* rules, Logger* planLogger) {
    if (rules == nullptr)
        return false;
    if (Logger::m_Traces)
        planLogger->debug(entryTrace(number, rules));
    return true;
}

} // namespace plantext
} // namespace numbering

#endif
