#include "CheckedFile.h"

#include "config/PropertyRules.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <limits>
#include <utility>

namespace numbering {
namespace configcheck {

namespace {

// The reader gives up on a reference nested more than ten deep, as on a circular one.
const int DEEPEST_REFERENCE = 10;
// Longer expansions are not built: nested references can multiply a value without bound.
const std::size_t LONGEST_EXPANSION = std::size_t(1) << 20;

std::size_t saturatedSum(std::size_t a, std::size_t b) {
    return a > std::numeric_limits<std::size_t>::max() - b ? std::numeric_limits<std::size_t>::max() : a + b;
}

} // namespace

CheckedFile::CheckedFile(std::string path, PropertyText opened, std::vector<KesConfigurationFinding>* sink)
    : filePath(std::move(path)), file(std::move(opened)), findings(sink) {
    for (const KeyLine& set : keyLines(file.text))
        linesOfKey[set.key].push_back(set.line);
}

std::vector<std::string> CheckedFile::keys() const {
    Poco::Util::AbstractConfiguration::Keys keys;
    file.properties->keys(keys);
    std::sort(keys.begin(), keys.end());
    return keys;
}

bool CheckedFile::has(const std::string& key) const {
    return file.properties->hasProperty(key);
}

std::optional<std::string> CheckedFile::value(const std::string& key, std::string& why) const {
    if (!has(key)) {
        // Listed by keys() yet without a value: only keys below it ("DE.x") are set.
        why = "no key is '" + key + "' itself, only keys that begin with '" + key +
              ".', which the reader cannot give";
        return std::nullopt;
    }
    why = referenceFailure(key);
    if (!why.empty())
        return std::nullopt;
    try {
        return file.properties->getString(key);
    } catch (const std::exception& e) {
        why = e.what();
        return std::nullopt;
    }
}

Poco::AutoPtr<NumberedProperties> CheckedFile::numberedList(const std::string& prefix) const {
    return readNumberedList(file, prefix);
}

void CheckedFile::report(Severity severity, const std::string& key, const std::string& message) {
    report(severity, key, lineOf(key), message);
}

void CheckedFile::report(Severity severity, const std::string& key, int line, const std::string& message) {
    if (findings == nullptr)
        return;
    // Keys and values of a damaged file may hold control characters: they are shown as codes.
    std::string shown;
    for (char c : message) {
        const unsigned char byte = static_cast<unsigned char>(c);
        if (byte >= 0x20 && byte != 0x7f) {
            shown += c;
            continue;
        }
        char code[8];
        std::snprintf(code, sizeof code, "\\x%02x", byte);
        shown += code;
    }
    findings->push_back(KesConfigurationFinding{severity, filePath, key, line, shown});
}

void CheckedFile::reportUnreadable(const std::string& key, const std::string& why,
                                   const std::string& consequence) {
    reportedUnreadable.insert(key);
    report(Severity::Error, key, key + " cannot be read (" + why + "): " + consequence);
}

int CheckedFile::lineOf(const std::string& key) const {
    if (key.empty())
        return 0;
    auto found = linesOfKey.find(key);
    if (found != linesOfKey.end())
        return found->second.back();
    // A key that the reader lists for "DE.x": the first line below it.
    int line = 0;
    for (auto below = linesOfKey.lower_bound(key + "."); below != linesOfKey.end(); ++below) {
        if (below->first.compare(0, key.size() + 1, key + ".") != 0)
            break;
        if (line == 0 || below->second.front() < line)
            line = below->second.front();
    }
    return line;
}

// --- references -------------------------------------------------------------------------------

CheckedFile::Expansion& CheckedFile::expansionOf(const std::string& key) const {
    auto found = expansions.find(key);
    if (found != expansions.end())
        return found->second;
    Expansion expansion;
    const References read = readReferences(file.properties->getRawString(key, std::string()));
    expansion.length = read.textLength;
    for (const std::string& name : read.names) {
        if (has(name)) {
            expansion.references.push_back(name);
        } else {
            expansion.length += name.size() + 3; // kept as written: "${" name "}"
            expansion.unresolved.push_back(name);
        }
    }
    return expansions.emplace(key, std::move(expansion)).first->second;
}

// Depth-first over the references, without recursion: a file may chain any number of keys.
void CheckedFile::expand(const std::string& key) const {
    if (expansionOf(key).state == 2)
        return;
    struct Step {
        std::string key;
        std::size_t next;
    };
    std::vector<Step> path{{key, 0}};
    expansionOf(key).state = 1;
    while (!path.empty()) {
        Step& step = path.back();
        Expansion& current = expansionOf(step.key);
        if (step.next < current.references.size()) {
            const std::string name = current.references[step.next++];
            Expansion& referenced = expansionOf(name);
            if (referenced.state == 0) {
                referenced.state = 1;
                path.push_back({name, 0});
                continue;
            }
            if (referenced.state == 1)
                current.circular = true;
            else {
                current.circular = current.circular || referenced.circular;
                current.depth = std::max(current.depth, referenced.depth + 1);
                current.length = saturatedSum(current.length, referenced.length);
            }
            continue;
        }
        current.state = 2;
        const Expansion done = current;
        path.pop_back();
        if (!path.empty()) {
            Expansion& parent = expansionOf(path.back().key);
            parent.circular = parent.circular || done.circular;
            parent.depth = std::max(parent.depth, done.depth + 1);
            parent.length = saturatedSum(parent.length, done.length);
        }
    }
}

std::string CheckedFile::referenceFailure(const std::string& key) const {
    expand(key);
    const Expansion& expansion = expansionOf(key);
    if (expansion.circular)
        return "its references lead back to a key they are expanding";
    if (expansion.depth >= DEEPEST_REFERENCE)
        return "its references are nested " + std::to_string(expansion.depth) +
               " deep, and the reader gives up beyond " + std::to_string(DEEPEST_REFERENCE - 1);
    if (expansion.length > LONGEST_EXPANSION)
        return "its nested references would expand to more than " + std::to_string(LONGEST_EXPANSION) +
               " characters";
    return std::string();
}

void CheckedFile::checkReferences(const std::string& key) {
    const Expansion& expansion = expansionOf(key);
    for (const std::string& name : expansion.unresolved)
        report(Severity::Warning, key,
               key + ": '${" + name + "}' names no key of this file: the value keeps the text '${" + name +
                   "}' as written");
    std::string why = referenceFailure(key);
    if (!why.empty()) {
        if (reportedUnreadable.count(key) == 0)
            report(Severity::Error, key, key + " cannot be read: " + why);
    } else if (expansion.depth > 1) {
        report(Severity::Warning, key,
               key + ": references inside referenced values (" + std::to_string(expansion.depth) +
                   " levels) expand to " + std::to_string(expansion.length) +
                   " characters; each level can multiply a value without bound");
    } else if (expansion.depth == 1) {
        report(Severity::Note, key,
               key + " refers to other keys: the library reads '" + value(key, why).value_or(why) + "'");
    }
}

// --- the text ---------------------------------------------------------------------------------

void CheckedFile::checkCharacters() {
    bool nul = false, binary = false;
    int line = 1;
    for (char c : file.text) {
        const unsigned char byte = static_cast<unsigned char>(c);
        if (byte == '\n')
            ++line;
        else if (byte == 0 && !nul) {
            nul = true;
            report(Severity::Error, std::string(), line,
                   "NUL byte: the reader takes it for a line end, and the rest of the line for a new key");
        } else if (byte != 0 && byte < 0x20 && byte != '\t' && byte != '\r' && byte != '\f' && byte != '\v' &&
                   !binary) {
            binary = true;
            char code[8];
            std::snprintf(code, sizeof code, "0x%02x", byte);
            report(Severity::Error, std::string(), line,
                   std::string("binary content (byte ") + code +
                       "): this is not a property file, and the keys the reader finds in it mean nothing");
        }
    }
}

void CheckedFile::checkText() {
    checkCharacters();
    for (const auto& [key, lines] : linesOfKey)
        for (std::size_t i = 0; i + 1 < lines.size(); ++i)
            report(Severity::Warning, key, lines[i],
                   key + " is set again on line " + std::to_string(lines.back()) +
                       ": the library keeps only the last value");
    for (const auto& line : linesOfKey)
        if (has(line.first) && holdsReferences(file.properties->getRawString(line.first)))
            checkReferences(line.first);
}

} // namespace configcheck
} // namespace numbering
