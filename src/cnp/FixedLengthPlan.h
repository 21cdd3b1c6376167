#ifndef NUMBERING_CNP_FIXEDLENGTHPLAN_H
#define NUMBERING_CNP_FIXEDLENGTHPLAN_H

// The conversion shared by the plans of countries with closed numbering and one national length:
// a number of that length is national; a number one national prefix shorter is completed with
// the prefix; a number one outside-line prefix longer is taken from behind that prefix.

#include <string>
#include <string_view>

class Logger;

namespace numbering {

class Generation;
class KesDialRulesItem;

/// What sets one fixed-length plan apart from the others.
struct FixedLengthPlan {
    /// The dialing rules row whose long-distance prefix is the national prefix.
    const char* countryKey;
    /// The length of a national number, national prefix included.
    std::string::size_type nationalLength;
    /// A number already beginning with the national prefix is never completed with it.
    bool completesOnlyUnprefixed;
    /// The canonical form of a national number of `nationalLength` characters.
    std::string (*canonical)(std::string_view national);
};

/// The canonical form of `number`, or `number` unchanged. A country without a dialing rules row
/// has an empty national prefix. `owner` is the plan's configuration (null: the current one).
std::string makeFixedLengthCanonicalNumber(const FixedLengthPlan& plan, Generation* owner, Logger* logger,
                                           std::string number, KesDialRulesItem* rules);

} // namespace numbering

#endif
