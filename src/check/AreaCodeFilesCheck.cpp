// The area code files of the plans and the Colombian operator file, read as the plans and the
// Colombian dialing strategy read them: a numbered list up to its first gap, the leading digits of
// each value stored in the library's own area code tree.
#include "FileChecks.h"

#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/Ascii.h>

#include <algorithm>
#include <map>

namespace numbering {
namespace configcheck {

namespace {

/// What differs between the two numbered lists.
struct NumberedList {
    std::string prefix;      // "AC_", "OP_"
    std::string what;        // "area code", "operator prefix"
    std::size_t longestCode; // 0: no limit
    std::string callingCode;
};

std::string codesLost(int count) {
    return std::to_string(count) + (count == 1 ? " code listed after it is" : " codes listed after it are") +
           " never read";
}

/// One numbered list, walked by the loaders' own walk: a code stored, refused or ending the list
/// as the loaders store, refuse or end on it.
class NumberedListCheck {
public:
    NumberedListCheck(CheckedFile& checked, const NumberedList& kind) : file(checked), list(kind) {}

    /// Returns the codes stored in the tree.
    std::vector<std::string> walk() {
        findIndices();
        const int missing =
            file.numberedList(list.prefix)->forEachRawNumberedValue([this](int index, std::string_view raw) {
                return read(index, raw);
            });
        const int after = missing < 0 ? 0 : readAfter(missing);
        if (after > 0) // reported at the first key the gap hides
            file.report(Severity::Error,
                        numberedKey(list.prefix, *std::upper_bound(indices.begin(), indices.end(), missing)),
                        numberedKey(list.prefix, missing) +
                            " is missing: the list ends at this gap, and the " + codesLost(after));
        return stored;
    }

private:
    /// The keys of the list as the file holds them, and those the walk never reaches.
    void findIndices() {
        for (const std::string& key : file.keys()) {
            if (key.size() == list.prefix.size() || key.compare(0, list.prefix.size(), list.prefix) != 0 ||
                leadingDigits(key.substr(list.prefix.size())).size() != key.size() - list.prefix.size())
                continue; // not a numbered key ("OP_DEFAULT")
            const int index = numberedIndex(list.prefix, key);
            if (index >= 0 && index <= LAST_NUMBERED_INDEX)
                indices.push_back(index);
            else
                file.report(Severity::Warning, key,
                            key + " is never read: the list runs from " + numberedKey(list.prefix, 0) +
                                " to " + numberedKey(list.prefix, LAST_NUMBERED_INDEX));
        }
        std::sort(indices.begin(), indices.end());
    }

    int readAfter(int index) const {
        return static_cast<int>(indices.end() - std::upper_bound(indices.begin(), indices.end(), index));
    }

    /// One value of the list; false when the loaders' walk ends on it.
    bool read(int index, std::string_view raw) {
        const std::string key = numberedKey(list.prefix, index);
        std::string why;
        const std::optional<std::string> value =
            holdsReferences(raw) ? file.value(key, why) : std::string(raw);
        if (!value) {
            file.reportUnreadable(key, why, "the list ends here, and the " + codesLost(readAfter(index)));
            return false;
        }
        const std::string digits = leadingDigits(*value);
        if (digits.empty()) {
            file.report(Severity::Error, key,
                        key + " = " + *value + " does not begin with a digit: the list ends here, and the " +
                            codesLost(readAfter(index)));
            return false;
        }
        if (digits.size() < value->size() &&
            !Poco::Ascii::isSpace(static_cast<unsigned char>((*value)[digits.size()])))
            file.report(Severity::Note, key,
                        key + " = " + *value + ": only '" + digits +
                            "' counts; text after the digits is dropped (separate a comment by a blank)");
        if (list.longestCode != 0 && digits.size() > list.longestCode)
            file.report(Severity::Error, key,
                        key + ": " + list.what + " " + digits + " has " + std::to_string(digits.size()) +
                            " digits, more than the " + std::to_string(list.longestCode) +
                            " the library accepts for +" + list.callingCode +
                            ": no number under it can be dialled (a canonical number is dialled only below " +
                            std::to_string(KesNumberingConfig::MAX_PHONE_NUMBER_LENGTH) + " characters)");
        store(key, digits);
        return true;
    }

    void store(const std::string& key, const std::string& digits) {
        if (tree.insert(digits)) {
            stored.push_back(digits);
            keyOfCode.emplace(digits, key);
            return;
        }
        // Refused by the tree: stored already, or the beginning of a longer code stored before it.
        if (tree.extractAreaCode(digits) == digits) {
            file.report(Severity::Warning, key,
                        key + ": " + list.what + " " + digits + " is listed already (" + keyOfCode[digits] +
                            "): the repeat changes nothing");
            return;
        }
        auto longer = std::find_if(stored.begin(), stored.end(), [&](const std::string& code) {
            return code.size() > digits.size() && code.compare(0, digits.size(), digits) == 0;
        });
        const std::string before = longer == stored.end() ? std::string() : *longer;
        file.report(Severity::Error, key,
                    key + ": " + list.what + " " + digits + " comes after " + before + " (" +
                        keyOfCode[before] + "), which begins with it: the library never finds " + digits +
                        " as an " + list.what + " (list shorter codes first)");
    }

    CheckedFile& file;
    const NumberedList& list;
    std::vector<int> indices; // of the keys of the list the file holds, ascending
    KesAreaCodeTree tree;
    std::vector<std::string> stored;
    std::map<std::string, std::string> keyOfCode;
};

} // namespace

std::vector<std::string> checkAreaCodes(CheckedFile& file, const AreaCodePlan& plan) {
    const std::string callingCode = plan.callingCode;
    if (plan.readsTranslate) {
        // "Translate" is read first: failing on it, the plan loads nothing at all.
        const std::string consequence =
            "the plan of +" + callingCode +
            " fails on it first, so it keeps translation on and loads no area code";
        std::string why;
        std::optional<std::string> translate = file.value("Translate", why);
        if (!file.has("Translate")) {
            file.report(Severity::Error, std::string(), "no Translate key: " + consequence);
            return {};
        }
        if (!translate) {
            file.reportUnreadable("Translate", why, consequence);
            return {};
        }
        if (!translateOn(*translate) && *translate != "0")
            file.report(Severity::Warning, "Translate",
                        "Translate = " + *translate + " switches translation off: only 1 switches it on");
    }
    return NumberedListCheck(file, {"AC_", "area code", longestAreaCode(callingCode), callingCode}).walk();
}

void checkOperators(CheckedFile& file) {
    std::string why;
    std::optional<std::string> operatorPrefix = file.value("OP_DEFAULT", why);
    if (!file.has("OP_DEFAULT")) {
        file.report(Severity::Note, std::string(), "no OP_DEFAULT: the Colombian dialing dials operator 9");
    } else {
        if (!operatorPrefix) {
            file.reportUnreadable("OP_DEFAULT", why,
                                  "the Colombian dialing fails on it first, so it dials operator 9 and "
                                  "recognises no operator");
            return;
        }
        if (operatorPrefix->empty() || leadingDigits(*operatorPrefix) != *operatorPrefix)
            file.report(Severity::Error, "OP_DEFAULT",
                        "OP_DEFAULT = " + *operatorPrefix +
                            ": the default operator is dialled exactly as written, behind the trunk and the "
                            "international prefix, so it must be digits");
    }
    NumberedListCheck(file, {"OP_", "operator prefix", 0, "57"}).walk();
}

std::string listed(const std::vector<std::string>& items) {
    const std::size_t shown = 10;
    std::string text;
    for (std::size_t i = 0; i < items.size() && i < shown; ++i)
        text += (i == 0 ? "" : ", ") + items[i];
    if (items.size() > shown)
        text += " and " + std::to_string(items.size() - shown) + " more";
    return text;
}

} // namespace configcheck
} // namespace numbering
