#include "RepeatedFindings.h"

#include <map>
#include <string>
#include <tuple>

namespace numbering {
namespace configcheck {

namespace {

const int LISTED_OF_A_KIND = 3;

bool isWordCharacter(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '+';
}

/// A word that names rather than says: the finding's key, or one with digits, '_' or '+' in it (keys,
/// calling codes, numbers), or of capitals only (country codes).
bool isParticular(const std::string& word, const std::string& key) {
    if (word == key)
        return true;
    bool capitals = word.size() > 1;
    for (char c : word) {
        if ((c >= '0' && c <= '9') || c == '_' || c == '+')
            return true;
        capitals = capitals && c >= 'A' && c <= 'Z';
    }
    return capitals;
}

/// The message with its particulars (quoted texts, what stands in parentheses, such as lists of
/// keys, and words that name) replaced by "*": what findings of one kind have in common.
std::string kindOf(const KesConfigurationFinding& finding) {
    const std::string& message = finding.message;
    std::string kind;
    for (std::string::size_type i = 0; i < message.size();) {
        const char c = message[i];
        // A quote opens a quoted text where no word runs into it ("the library's" is no quote).
        const bool quote = (c == '\'' || c == '"') && (i == 0 || !isWordCharacter(message[i - 1]));
        if (quote || c == '(') {
            const std::string::size_type close = message.find(c == '(' ? ')' : c, i + 1);
            kind += "*";
            i = close == std::string::npos ? message.size() : close + 1;
        } else if (isWordCharacter(c)) {
            std::string::size_type end = i;
            while (end < message.size() && isWordCharacter(message[end]))
                ++end;
            const std::string word = message.substr(i, end - i);
            kind += isParticular(word, finding.key) ? "*" : word;
            i = end;
        } else {
            kind += c;
            ++i;
        }
    }
    return kind;
}

} // namespace

void countRepeatedFindings(std::vector<KesConfigurationFinding>& findings) {
    using Kind = std::tuple<std::string, KesConfigurationFinding::Severity, std::string>;
    std::vector<Kind> kinds;
    std::map<Kind, int> total;
    for (const KesConfigurationFinding& finding : findings) {
        kinds.emplace_back(finding.file, finding.severity, kindOf(finding));
        ++total[kinds.back()];
    }
    std::vector<KesConfigurationFinding> listed;
    std::map<Kind, int> seen;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        const int number = ++seen[kinds[i]];
        if (number > LISTED_OF_A_KIND)
            continue;
        listed.push_back(std::move(findings[i]));
        const int more = total[kinds[i]] - LISTED_OF_A_KIND;
        if (number == LISTED_OF_A_KIND && more > 0) {
            const KesConfigurationFinding& last = listed.back();
            listed.push_back({last.severity, last.file, std::string(), 0,
                              "and " + std::to_string(more) + " more like it, not listed one by one", more});
        }
    }
    findings = std::move(listed);
}

} // namespace configcheck
} // namespace numbering
