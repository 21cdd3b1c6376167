#ifndef NUMBERING_KESCNPREGISTRY_H
#define NUMBERING_KESCNPREGISTRY_H

#include "numbering/Export.h"

#include <string>
#include <vector>

namespace numbering {

class KesCNP;

/// The country numbering plans as data: one row per calling code that has a plan. The plan
/// factory makes its plans from it, a reload reads the files it names, the configuration check
/// checks them, and the configuration generator reads it as tools/plans.tsv, which a test holds
/// equal to it. docs/adding-a-plan.md tells how to add a country.
class NUMBERING_API KesCNPRegistry {
public:
    /// What the plan of a calling code, or the dialing of its country, reads from the
    /// configuration directory.
    enum class Reads {
        Nothing,
        AreaCodes, ///< "AC_%04d" of the plan file ("tz310cnp_<code>.properties", else its default)
        TranslateAndAreaCodes, ///< the same, "Translate" first
        Operators, ///< the country's dialing strategy reads the plan file alone, never its default
    };
    /// How a plan with area codes writes a national number that begins with none of them.
    enum class UnknownAreaCode {
        Neutral, ///< "(0) national number", or split at fixed digits: right for a number without area code
        Guessed, ///< behind an area code it guesses (the installation's own, the first digits)
    };

    /// One plan: its calling code, its country, how it is made and what it reads.
    struct Plan {
        const char* callingCode; ///< "49"
        /// "DE": the country the plan is written for; the dialing rules may give its calling code
        /// to others too ("CA" shares +1), which then get the same plan.
        const char* country;
        KesCNP* (*create)();          ///< a new plan, reference count 1; its constructor reads its files
        Reads reads = Reads::Nothing; ///< what the plan (or the country's dialing) reads
        UnknownAreaCode unknownAreaCode = UnknownAreaCode::Neutral; ///< for plans with area codes
        bool looksUpCountry = false; ///< the national prefix comes from the dialing rules row of `country`

        /// Whether the plan reads area codes from its file.
        bool readsAreaCodes() const {
            return reads == Reads::AreaCodes || reads == Reads::TranslateAndAreaCodes;
        }
        /// The plan's installation file, "tz310cnp_<code>.properties".
        std::string installationFile() const { return KesCNPRegistry::installationFile(callingCode); }
        /// The plan's default file, "tz310cnp_<code>_default.properties".
        std::string defaultFile() const { return KesCNPRegistry::defaultFile(callingCode); }
    };

    /// Every plan, in the order the factory tries them.
    static const std::vector<Plan>& plans();
    /// The plan of `callingCode` ("49", exactly), or null.
    static const Plan* find(const std::string& callingCode);

    /// "tz310cnp_49.properties", in the configuration directory.
    static std::string installationFile(const std::string& callingCode);
    /// "tz310cnp_49_default.properties", read when the installation file cannot be opened.
    static std::string defaultFile(const std::string& callingCode);
};

} // namespace numbering

#endif
