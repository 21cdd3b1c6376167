#ifndef NUMBERING_SRC_CHECK_FILECHECKS_H
#define NUMBERING_SRC_CHECK_FILECHECKS_H

// The checks of each kind of configuration file. Each walks its file in the order and by the
// rules of the loader that reads it, reports through the file, and returns what the library would
// load from it (to list what an installation file lacks of its default).

#include "CheckedFile.h"
#include "config/PropertyRules.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace numbering {
namespace configcheck {

/// The dialing rules as the configuration store loads them, for the checks of the other files.
struct DialingRules {
    std::map<std::string, DialingRuleFields> rows;           // by country code
    std::map<std::string, std::string> countryOfCallingCode; // the first P row of each calling code
    std::map<std::string, std::vector<std::string>> rowsOfCallingCode;

    /// Whether a row that the plans can be found by (a two-character key) has `callingCode`.
    bool usesCallingCode(const std::string& callingCode) const;
};

/// A plan that reads an area code file (a row of KesCNPRegistry).
struct AreaCodePlan {
    const char* callingCode;
    bool readsTranslate;
};

/// Loads `rules` from the file; returns the country codes read.
std::vector<std::string> checkDialingRules(CheckedFile& file, DialingRules& rules);
/// Returns the calling codes that get a mask.
std::vector<std::string> checkMasks(CheckedFile& file, const DialingRules& rules);
/// Returns the first valid switch of the file, the only one the store keeps.
std::optional<bool> checkActivation(CheckedFile& file, const DialingRules& rules);
/// Returns the area codes the plan stores.
std::vector<std::string> checkAreaCodes(CheckedFile& file, const AreaCodePlan& plan);
/// The Colombian operators: the default operator and the operator list.
void checkOperators(CheckedFile& file);

/// "AD, AE, AF" for the first few of `items`, with the count of the others.
std::string listed(const std::vector<std::string>& items);

} // namespace configcheck
} // namespace numbering

#endif
