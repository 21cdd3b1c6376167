// The masks and the specific-format switches, walked as the configuration store loads them: the
// root-level keys in ascending order, a key's value read only once the key itself is accepted.
#include "FileChecks.h"

namespace numbering {
namespace configcheck {

namespace {

// What a mask may hold: its letters (calling code, area code, area code unless a national
// prefix, one subscriber digit) and the separators every conversion drops.
const std::string MASK_LETTERS = "CAax";
const std::string MASK_PUNCTUATION = " -.()+";

std::string whySkipped(const std::string& key, const MaskKey& mask) {
    switch (mask.skipped) {
    case MaskKey::Skipped::NoMaskPrefix:
        return key +
               " is skipped: the library reads only keys holding 'Mask_' (Mask_<calling code>_<suffix>)";
    case MaskKey::Skipped::NoSeparator:
        return key + " is skipped: no '_' follows the calling code (write Mask_<calling code>_<suffix>, such "
                     "as Mask_33_1)";
    default:
        return key + " is skipped: its calling code '" + mask.callingCode +
               "' (from the sixth character up to the next '_') is not one to three characters";
    }
}

std::string strayMaskCharacters(const std::string& mask) {
    std::string stray;
    for (char c : mask)
        if (MASK_LETTERS.find(c) == std::string::npos && MASK_PUNCTUATION.find(c) == std::string::npos &&
            stray.find(c) == std::string::npos)
            stray += c;
    return stray;
}

std::string keysAfter(const std::vector<std::string>& keys, std::size_t i) {
    return std::to_string(keys.size() - i - 1) + " keys after it in key order are lost";
}

} // namespace

std::vector<std::string> checkMasks(CheckedFile& file, const DialingRules& rules) {
    std::vector<std::string> callingCodes;
    std::map<std::string, std::string> maskKeyOfCode;
    const std::vector<std::string> keys = file.keys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string& key = keys[i];
        const MaskKey mask = readMaskKey(key);
        if (mask.skipped != MaskKey::Skipped::No) {
            file.report(Severity::Warning, key, whySkipped(key, mask));
            continue;
        }
        std::string why;
        std::optional<std::string> value = file.value(key, why);
        if (!value) {
            file.reportUnreadable(key, why,
                                  "the library stops reading the masks here, and the " + keysAfter(keys, i));
            break;
        }
        if (value->empty()) {
            file.report(Severity::Warning, key, key + " is empty: the library ignores it");
            continue;
        }
        const std::string& code = mask.callingCode;
        if (key.compare(0, 5, "Mask_") != 0)
            file.report(Severity::Warning, key,
                        key +
                            ": 'Mask_' does not begin the key, yet the library cuts the calling code from "
                            "its sixth character: '" +
                            code + "'");
        auto [first, added] = maskKeyOfCode.emplace(code, key);
        if (!added) {
            file.report(Severity::Warning, key,
                        key + " is never used: " + first->second + " comes first in key order and gives +" +
                            code + " its mask");
            continue;
        }
        callingCodes.push_back(code);
        const std::string stray = strayMaskCharacters(*value);
        if (!stray.empty())
            file.report(Severity::Warning, key,
                        key + ": '" + stray +
                            "' is neither a mask letter (C, A, a, x) nor a separator (blank - . ( ) +): "
                            "it is written as it stands into every number of +" +
                            code);
        if (!rules.rows.empty() && rules.rowsOfCallingCode.count(code) == 0) // no rules: said once
            file.report(Severity::Warning, key,
                        key + ": no row of the dialing rules has calling code " + code +
                            ", so the mask is never used");
    }
    for (const auto& [code, rowKeys] : rules.rowsOfCallingCode)
        if (maskKeyOfCode.count(code) == 0)
            file.report(Severity::Error, std::string(),
                        "no mask for +" + code + " (" + listed(rowKeys) +
                            "): without one a canonical number keeps only its subscriber number, so \"+" +
                            code +
                            " (89) 123456\" becomes \"123456\", which no longer names the country "
                            "and is dialled as a local number");
    return callingCodes;
}

std::optional<bool> checkActivation(CheckedFile& file, const DialingRules& rules) {
    std::optional<bool> first;
    std::string firstKey;
    const std::vector<std::string> keys = file.keys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string& key = keys[i];
        const std::optional<std::string> code = readActivationKey(key);
        if (!code) {
            file.report(Severity::Warning, key,
                        key + " is skipped: the library reads only cnp_ followed by a calling code of one "
                              "to three characters");
            continue;
        }
        if (rules.countryOfCallingCode.count(*code) == 0) {
            if (!rules.rows.empty()) // no rules at all: said once, for their file
                file.report(Severity::Warning, key,
                            key + ": no P row of the dialing rules has calling code " + *code +
                                ", so the library ignores the key");
            continue;
        }
        std::string why;
        std::optional<std::string> value = file.value(key, why);
        if (!value) {
            file.reportUnreadable(
                key, why, "the library stops reading the switches here, and the " + keysAfter(keys, i));
            break;
        }
        const Switch read = readSwitch(*value);
        if (read == Switch::Empty || read == Switch::Invalid) {
            file.report(Severity::Warning, key,
                        key +
                            (read == Switch::Empty
                                 ? " is empty"
                                 : " = " + *value + " is not a switch (on/off, true/false, 1/0)") +
                            ": the library ignores it");
            continue;
        }
        if (!first) {
            first = read == Switch::On;
            firstKey = key;
        }
        if (read == Switch::Off)
            file.report(
                Severity::Warning, key,
                key + " = " + *value + " switches nothing off: the library keeps only the first valid " +
                    "switch of the file (" + (firstKey == key ? "this one" : firstKey) +
                    ") and files it under calling code 0, so the plan of every calling code stays on");
    }
    return first;
}

} // namespace configcheck
} // namespace numbering
