#ifndef NUMBERING_KESSITEFILE_H
#define NUMBERING_KESSITEFILE_H

#include "numbering/Export.h"
#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesDialRulesItem.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace numbering {

/// The installation's settings kept in a property file (a site file), so that a host and the
/// numbering tool describe the installation alike:
///
/// @code
/// country = FR
/// ext_prefix = 0
/// area_codes = 1, 2
/// local_length = 5
/// except_length = 3
/// except_begin = 1
/// @endcode
///
/// Every key but `country` may be left out (empty, or 0 for the lengths). check() says what the
/// library would do wrong with the settings; makeDialRulesItem() gives the host its installation.
class NUMBERING_API KesSiteFile {
public:
    static const char* const COUNTRY;       ///< "country": the ISO 3166 alpha-2 code, in capitals
    static const char* const EXT_PREFIX;    ///< "ext_prefix": the digits that seize an outside line
    static const char* const AREA_CODES;    ///< "area_codes": the own area codes, comma-separated
    static const char* const LOCAL_LENGTH;  ///< "local_length": shorter numbers are internal
    static const char* const EXCEPT_LENGTH; ///< "except_length": the length of exception numbers
    static const char* const EXCEPT_BEGIN;  ///< "except_begin": their leading digits

    std::string file;        ///< where the settings were read; "" when they were not read from a file
    std::string country;     ///< the installation's country (country)
    std::string extPrefix;   ///< the outside-line prefix (ext_prefix)
    std::string areaCodes;   ///< the own area codes, comma-separated (area_codes)
    int localLength = 0;     ///< the local number length (local_length)
    int exceptLength = 0;    ///< the exception number length (except_length)
    std::string exceptBegin; ///< the leading digits of exception numbers (except_begin)

    /// Reads the site file at `path`. Throws std::runtime_error, whose message names the file and
    /// the reason, when it cannot be opened; what it holds is judged by check().
    static KesSiteFile read(const std::string& path);

    /// What is wrong with the settings for the configuration in use (KesNumberingRules::reload()
    /// chooses it): a country the dialing rules lack, an outside-line prefix, exception digits or
    /// area codes that are not digits, an area code that the country's plan does not know, keys
    /// the file misspells or lengths that are no whole number. Findings carry the file and line of
    /// their key (line 0 for a setting not read from the file). Builds the country's plan if it
    /// was not built yet.
    std::vector<KesConfigurationFinding> check() const;

    /// The installation as the library takes it; throws what the KesDialRulesItem constructor
    /// throws (KesUnsupportedCountryException for a country the dialing rules lack).
    std::unique_ptr<KesDialRulesItem> makeDialRulesItem() const;

    /// Takes `key` as set by other means than the file (a command-line option): its findings then
    /// carry no line of the file.
    void forget(const std::string& key);

private:
    void checkSettings(std::vector<KesConfigurationFinding>& findings) const;

    std::map<std::string, int> lines;                     // the line of each key read from the file
    std::vector<KesConfigurationFinding> readingFindings; // what read() could not take
};

} // namespace numbering

#endif
