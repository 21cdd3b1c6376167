// The dialing rules file, walked as the configuration store loads it: every root-level key in
// ascending order, its value cut into fields, the first row of a name or of a P calling code kept.
#include "FileChecks.h"

#include "numbering/KesCNPRegistry.h"
#include "numbering/KesCountryRuleItem.h"

#include <Poco/AutoPtr.h>

#include <algorithm>

namespace numbering {
namespace configcheck {

namespace {

bool allDigits(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isCountryCode(const std::string& key) {
    return key.size() == 2 &&
           std::all_of(key.begin(), key.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

bool isCallingCode(const std::string& text) {
    return !text.empty() && text.size() <= 3 && allDigits(text);
}

/// The characters of `rule` from `from` on that are none of `letters`.
std::string meaningless(const std::string& rule, std::string::size_type from, const std::string& letters) {
    std::string found;
    for (std::string::size_type i = from; i < rule.size(); ++i)
        if (letters.find(rule[i]) == std::string::npos && found.find(rule[i]) == std::string::npos)
            found += rule[i];
    return found;
}

class RowCheck {
public:
    RowCheck(CheckedFile& checked, DialingRules& loaded) : file(checked), rules(loaded) {}

    void check(const std::string& key, const DialingRuleFields& row) {
        checkKey(key, row);
        checkFieldCount(key, row);
        const std::string& callingCode = row.callingCode();
        if (!isCallingCode(callingCode))
            file.report(Severity::Error, key,
                        key + ": calling code '" + callingCode +
                            "' is not one to three digits: no number ever matches it");
        checkPrefixesAndRules(key, row);
        if (!row.field[6].empty() && !row.primary())
            file.report(Severity::Warning, key,
                        key + ": '" + row.field[6] + "' is not P, so the row is not the country of +" +
                            callingCode);
        keepFirst(key, row);
    }

private:
    void checkKey(const std::string& key, const DialingRuleFields& row) {
        if (isCountryCode(key))
            return;
        if (key.size() != 2 && row.primary())
            file.report(Severity::Error, key,
                        key + " is not a two-letter country code, and as the P row of +" + row.callingCode() +
                            " it makes numbers of +" + row.callingCode() +
                            " belong to a country that no look-up finds");
        else
            file.report(Severity::Warning, key,
                        key + " is not two upper-case letters: the library looks a country up by exactly "
                              "two characters, as written, so an installation naming its ISO 3166 code never "
                              "finds this row");
    }

    void checkFieldCount(const std::string& key, const DialingRuleFields& row) {
        if (row.count < 6)
            file.report(Severity::Error, key,
                        key + " has " + std::to_string(row.count) +
                            " fields, the library reads seven (calling code:international prefix:"
                            "international rule:long-distance rule:local rule:name:P) and takes the "
                            "missing ones as empty");
        else if (row.count > 7)
            file.report(Severity::Warning, key,
                        key + " has " + std::to_string(row.count) +
                            " fields: the library reads the first seven and ignores the rest (a name "
                            "cannot hold ':')");
    }

    void checkPrefixesAndRules(const std::string& key, const DialingRuleFields& row) {
        // The record derives the prefixes of the rules itself: what stands before the first F, else I.
        Poco::AutoPtr<KesCountryRuleItem> record(new KesCountryRuleItem(
            row.field[0], row.field[1], row.field[2], row.field[3], row.field[4], row.field[5]));
        const std::string internationalPrefix = record->getInternatPfx();
        if (internationalPrefix.empty())
            file.report(Severity::Warning, key,
                        key + ": the international prefix is empty: international numbers are dialled "
                              "without one");
        checkDigits(key, "international prefix", internationalPrefix, std::string());
        const std::string extra = meaningless(record->getInternatRule(), 0, "EF");
        if (!extra.empty())
            file.report(Severity::Warning, key,
                        key + ": international rule '" + record->getInternatRule() + "': '" + extra +
                            "' means nothing there (only E and F are read)");
        checkNationalRule(key, "long-distance", record->getLongDistRule(), record->getLongDistPrefix());
        checkNationalRule(key, "local", record->getLocalRule(), record->getLocalDistPrefix());
    }

    void checkNationalRule(const std::string& key, const std::string& which, const std::string& rule,
                           const std::string& prefix) {
        checkDigits(key, which + " prefix", prefix,
                    " (what stands before the first F, else I, of rule '" + rule + "')");
        const std::string extra = meaningless(rule, prefix.size(), "FI");
        if (!extra.empty())
            file.report(Severity::Warning, key,
                        key + ": " + which + " rule '" + rule + "': '" + extra +
                            "' means nothing there (only F and I are read, behind the prefix)");
    }

    void checkDigits(const std::string& key, const std::string& what, const std::string& prefix,
                     const std::string& where) {
        if (!allDigits(prefix))
            file.report(Severity::Error, key,
                        key + ": " + what + " '" + prefix + "'" + where +
                            " is not digits, and is dialled as it stands");
    }

    // Insertion never replaces: the first row of a name, and the first P row of a calling code, win.
    void keepFirst(const std::string& key, const DialingRuleFields& row) {
        const std::string& name = row.name();
        if (!name.empty()) {
            auto [first, added] = rowOfName.emplace(name, key);
            if (!added)
                file.report(Severity::Warning, key,
                            key + " has the name '" + name + "' of " + first->second +
                                ", which comes first in key order: the name always finds " + first->second);
        }
        if (row.primary()) {
            auto [first, added] = rules.countryOfCallingCode.emplace(row.callingCode(), key);
            if (!added)
                file.report(Severity::Warning, key,
                            key + " is a second P row for +" + row.callingCode() + ": numbers of +" +
                                row.callingCode() + " belong to " + first->second +
                                ", which comes first in key order, never to " + key);
        }
        rules.rowsOfCallingCode[row.callingCode()].push_back(key);
    }

    CheckedFile& file;
    DialingRules& rules;
    std::map<std::string, std::string> rowOfName;
};

} // namespace

bool DialingRules::usesCallingCode(const std::string& callingCode) const {
    auto found = rowsOfCallingCode.find(callingCode);
    if (found == rowsOfCallingCode.end())
        return false;
    return std::any_of(found->second.begin(), found->second.end(),
                       [](const std::string& key) { return key.size() == 2; });
}

std::vector<std::string> checkDialingRules(CheckedFile& file, DialingRules& rules) {
    std::vector<std::string> loaded;
    RowCheck rows(file, rules);
    const std::vector<std::string> keys = file.keys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::string why;
        std::optional<std::string> value = file.value(keys[i], why);
        if (!value) {
            file.reportUnreadable(keys[i], why,
                                  "the library stops reading the dialing rules here, and the " +
                                      std::to_string(keys.size() - i - 1) +
                                      " rows after it in key order are lost");
            break;
        }
        DialingRuleFields row = splitDialingRule(*value);
        rows.check(keys[i], row);
        rules.rows.emplace(keys[i], std::move(row));
        loaded.push_back(keys[i]);
    }
    // A row serves when an installation can name its country and numbers can match its calling code.
    const bool usable = std::any_of(rules.rows.begin(), rules.rows.end(), [](const auto& row) {
        return isCountryCode(row.first) && isCallingCode(row.second.callingCode());
    });
    if (!usable)
        file.report(
            Severity::Error, std::string(),
            std::string(rules.rows.empty() ? "no row" : "no usable row") +
                " (a two-letter country code = calling code:international prefix:...): the library knows "
                "no country and refuses every installation as unsupported");
    for (const auto& [callingCode, keysOfCode] : rules.rowsOfCallingCode)
        if (rules.countryOfCallingCode.count(callingCode) == 0)
            file.report(Severity::Error, keysOfCode.front(),
                        "no row of +" + callingCode + " is marked P (" + listed(keysOfCode) +
                            "): the library never recognises numbers of +" + callingCode);
    // The plans (and the Russian and Argentine dialing) that look their country's row up by its
    // code, for the national prefix, work without one when it is missing. Their plans are on
    // whatever the activation file says: no switch reaches a non-zero code.
    for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans())
        if (plan.looksUpCountry && rules.usesCallingCode(plan.callingCode) &&
            specificFormatActive(plan.callingCode, false) && rules.rows.count(plan.country) == 0)
            file.report(Severity::Error, std::string(),
                        std::string("no row ") + plan.country + ", which the plan of +" + plan.callingCode +
                            " looks up for its national prefix: numbers of +" + plan.callingCode +
                            " are converted as if there were none");
    return loaded;
}

} // namespace configcheck
} // namespace numbering
