#ifndef NUMBERING_SRC_CONFIG_PROPERTYRULES_H
#define NUMBERING_SRC_CONFIG_PROPERTYRULES_H

// How the library reads the keys and values of its property files: what a dialing rules row splits
// into, which mask and activation keys count, what a switch or a "Translate" value says, how the
// numbered keys run, how long an area code may be. The loaders and the configuration check both
// read the files by these rules, so that the check reports what the loaders do.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace numbering {

/// A line of a property file that sets a key, as Poco's reader cuts the text: a line ends at "\n",
/// "\r\n", "\r" or a NUL byte; blank lines and comments ("#", "!") set nothing; the key, trimmed,
/// ends at the first "=" or ":"; a line ending in an odd number of backslashes goes on over the
/// next one, which sets no key. `line` counts "\n" line ends only, as an editor does.
struct KeyLine {
    std::string key;
    int line;
};
/// The lines of `text` that set a key, in the order of the file.
std::vector<KeyLine> keyLines(std::string_view text);

/// Whether a value as the file holds it has "${name}" references, which reading replaces by the
/// value of the key `name`.
inline bool holdsReferences(std::string_view value) {
    return value.find("${") != std::string_view::npos;
}

/// A value as the file holds it, cut as Poco expands its references: "${" opens a name up to the
/// next "}" or the end of the value; a lone "$" is text.
struct References {
    std::vector<std::string> names; // in order, once per mention
    std::size_t textLength = 0;     // the characters outside the references
};
References readReferences(std::string_view value);

/// A dialing rules value cut at ":" (no trimming, empty fields kept): calling code, international
/// prefix, international rule, long-distance rule, local rule, name, primary flag. Fields beyond
/// the seventh are ignored, missing ones are empty.
struct DialingRuleFields {
    std::array<std::string, 7> field;
    std::size_t count = 0; // fields the value holds, ignored ones included

    const std::string& callingCode() const { return field[0]; }
    const std::string& name() const { return field[5]; }
    /// Exactly "P": the row is the country returned for its calling code.
    bool primary() const { return field[6] == "P"; }
};
DialingRuleFields splitDialingRule(const std::string& value);

/// The reading of a masks key ("Mask_" + calling code + "_" + any suffix).
struct MaskKey {
    enum class Skipped { No, NoMaskPrefix, NoSeparator, CallingCodeLength };
    Skipped skipped = Skipped::No;
    /// Cut from the sixth character up to the next "_", wherever "Mask_" stands in the key.
    std::string callingCode;
};
MaskKey readMaskKey(const std::string& key);

/// The calling code of an activation key ("cnp_" + one to three characters), or none: the key is
/// skipped.
std::optional<std::string> readActivationKey(const std::string& key);

/// An activation value, compared without regard to case.
enum class Switch { On, Off, Empty, Invalid };
Switch readSwitch(const std::string& value);

/// Whether the plan of `callingCode` is on, given the first valid switch of the activation file
/// (none when there is none). Every switch is filed under 0, so only a calling code that reads as
/// 0 sees it: every other one is on.
bool specificFormatActive(const std::string& callingCode, std::optional<bool> firstSwitch);

/// A plan file's "Translate": "1" switches translation on, anything else off.
bool translateOn(const std::string& value);

/// The keys of a numbered list run from prefix + "0000" to prefix + "9998".
const int LAST_NUMBERED_INDEX = 9998;
/// prefix + the index as four digits ("AC_0007").
std::string numberedKey(const std::string& prefix, int index);
/// The index of a key of the form prefix + four digits, or -1.
int numberedIndex(std::string_view prefix, std::string_view key);

/// The leading run of decimal digits of a numbered value ("30 Berlin" gives "30"): all that the
/// plans keep of it.
std::string leadingDigits(std::string_view value);

/// The longest area code of calling code `callingCode` under which a number can still be dialled:
/// a canonical number ("+49 (area) subscriber") of MAX_PHONE_NUMBER_LENGTH characters or more is
/// never made dialable, even with a one-digit subscriber number.
std::size_t longestAreaCode(const std::string& callingCode);

} // namespace numbering

#endif
