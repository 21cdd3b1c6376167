#ifndef NUMBERING_SRC_CHECK_CHECKEDFILE_H
#define NUMBERING_SRC_CHECK_CHECKEDFILE_H

// One property file under check: its values as the library's reader gives them, the line of each
// key (as the reader cuts the text into lines), and the findings about it.

#include "PropertyReading.h"
#include "numbering/KesConfigurationCheck.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace numbering {
namespace configcheck {

using Severity = KesConfigurationFinding::Severity;

class CheckedFile {
public:
    /// Findings go to `findings`; a file opened only to be compared with another one passes null
    /// and records nothing.
    CheckedFile(std::string path, PropertyText opened, std::vector<KesConfigurationFinding>* findings);

    /// The root-level keys in ascending order: the order in which the loaders walk a file.
    std::vector<std::string> keys() const;
    bool has(const std::string& key) const;
    /// The value of `key` as the library reads it, or none when the reader fails on it; `why` then
    /// says why. Values whose references would expand to an absurd size are not expanded.
    std::optional<std::string> value(const std::string& key, std::string& why) const;
    /// The file as the loaders read its numbered list `prefix` ("AC_", "OP_").
    Poco::AutoPtr<NumberedProperties> numberedList(const std::string& prefix) const;

    /// Records a finding about `key`, at its line (the last line that sets it).
    void report(Severity severity, const std::string& key, const std::string& message);
    void report(Severity severity, const std::string& key, int line, const std::string& message);
    /// Records that the library cannot read `key` (see value()), and what it loses by that.
    void reportUnreadable(const std::string& key, const std::string& why, const std::string& consequence);

    /// Findings about the text itself: NUL bytes and binary content, keys set twice, "${...}"
    /// references. Run after the file's own checks, which report unreadable keys with their
    /// consequences first.
    void checkText();

private:
    /// What reading a value with "${...}" references in it comes to, as the reader expands them.
    struct Expansion {
        std::vector<std::string> references; // keys of the file it names, once per mention
        std::vector<std::string> unresolved; // names of no key: kept as written
        std::size_t length = 0;              // characters after expansion
        int depth = 0;                       // references nested inside references
        bool circular = false;               // the references lead back to a key being expanded
        int state = 0;                       // 0 not expanded, 1 being expanded, 2 done
    };
    Expansion& expansionOf(const std::string& key) const;
    void expand(const std::string& key) const;
    /// Why the reader fails on the references of `key`, or "".
    std::string referenceFailure(const std::string& key) const;
    void checkReferences(const std::string& key);
    void checkCharacters();

    int lineOf(const std::string& key) const;

    std::string filePath;
    PropertyText file;
    std::vector<KesConfigurationFinding>* findings;
    std::map<std::string, std::vector<int>> linesOfKey; // every line that sets a key
    std::set<std::string> reportedUnreadable;
    mutable std::map<std::string, Expansion> expansions;
};

} // namespace configcheck
} // namespace numbering

#endif
