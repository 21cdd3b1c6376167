#ifndef NUMBERING_KESCONFIGURATIONCHECK_H
#define NUMBERING_KESCONFIGURATIONCHECK_H

#include "numbering/Export.h"

#include <string>
#include <vector>

namespace numbering {

/// One thing the configuration check found in a file.
struct NUMBERING_API KesConfigurationFinding {
    /// How much a finding matters.
    enum class Severity {
        Note,    ///< how the library reads something, worth knowing
        Warning, ///< something the library ignores or reads differently from how it looks
        Error    ///< the library loses data, or numbers are converted or dialled wrongly
    };
    Severity severity;   ///< how much it matters
    std::string file;    ///< the file's path
    std::string key;     ///< the key it is about; "" for the file as a whole
    int line;            ///< 1-based line of the key, 0 when it cannot be told
    std::string message; ///< for the installer: what the library does, and what that means
    /// 0 for a finding of its own; more than 0 when it only counts that many further findings of
    /// the kind listed before it, in the same file: a few of each kind are listed, the rest counted.
    int alike = 0;

    /// "note", "warning" or "error".
    static const char* severityName(Severity severity);
    /// The finding on one line: "FILE:LINE: SEVERITY: MESSAGE", without "LINE:" when it is 0.
    std::string text() const;
};

/// One configuration file as the library reads it: the installation file, or its default when the
/// installation file cannot be opened (the two are never merged).
struct NUMBERING_API KesConfigurationFile {
    std::string installationFile; ///< the installation's file, read first
    std::string defaultFile;      ///< "" when the library reads no default (the Colombian operators)
    std::string inUse;            ///< the file the library reads; "" when it reads neither
};

/// What the check found in a configuration directory.
struct NUMBERING_API KesConfigurationReport {
    std::vector<KesConfigurationFile> files;       ///< every file the library would read, in reading order
    std::vector<KesConfigurationFinding> findings; ///< what was found, file by file

    /// 0 when nothing or only notes were found, 1 with warnings, 2 with errors.
    int status() const;
    /// The findings of `severity`, the counted ones included.
    int count(KesConfigurationFinding::Severity severity) const;
};

/// Checks the property files of a configuration directory as the library reads them, with its own
/// reader and rules, and says what it would do with them: rows and keys it skips, lists cut short,
/// area codes it never finds, countries whose numbers would lose their calling code. Changes no
/// file and builds nothing the library's conversions use, so a host may run it on any thread while
/// conversions go on. To refuse a directory with errors, a host reloads with
/// KesNumberingRules::reload(directory, ReloadPolicy::RefuseErrors), which checks the very files it
/// then activates: a check followed by a plain reload would activate an edit made in between.
///
/// @code
/// numbering::KesConfigurationReport report = numbering::KesConfigurationCheck::check("/etc/numbering/");
/// for (const numbering::KesConfigurationFinding& f : report.findings)
///     std::cerr << f.text() << "\n"; // "/etc/numbering/dialingrules.properties:12: warning: ..."
/// @endcode
class NUMBERING_API KesConfigurationCheck {
public:
    /// Checks `directory` (with or without a final "/"): reads every file the library may read
    /// there at once, then checks what it read. Throws nothing for missing or unreadable files:
    /// they are findings.
    static KesConfigurationReport check(const std::string& directory);
    /// Checks the directory of the configuration in use (KesNumberingConfig::configDirectory()).
    static KesConfigurationReport check();
};

} // namespace numbering

#endif
