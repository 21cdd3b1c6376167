#ifndef NUMBERING_KESAREACODEPLAN_H
#define NUMBERING_KESAREACODEPLAN_H

#include "numbering/Export.h"
#include "numbering/KesAreaCodeTree.h"
#include "numbering/KesCNP.h"

#include <Poco/AutoPtr.h>

#include <cstddef>
#include <string>
#include <string_view>

class Logger;

namespace numbering {

/// Base of the country plans whose area codes come from the country's plan file (KesCNPRegistry
/// names it, and its default companion): it reads the file once,
/// in the constructor, and holds the tree; the two conversion families that most of these plans
/// share live here too, parameterised by what differs between countries.
class NUMBERING_API KesAreaCodePlan : public KesCNP {
public:
    /// What tells one plan's file reading from another's; the file names, and whether "Translate"
    /// is read, come from the plan's row in KesCNPRegistry.
    struct PlanFile {
        const char* callingCode;        ///< "49": the row, and the trace tag "KesCNP_49"
        const char* textWhenUnopenable; ///< info text when Poco cannot open the installation file
        const char* textWhenNotFound;   ///< info text when the installation file does not exist
    };

    /// Where a national number begins with no known area code (two-pass plans).
    enum class UnknownAreaCode {
        OwnAreaCodeInFront, // the installation's area code goes in front of the whole national number
        FirstFourDigits     // the first four digits are taken as the area code
    };
    /// What tells one two-pass plan's conversion from another's.
    struct TwoPassRules {
        const char* callingCode;         ///< the country's, "49"
        UnknownAreaCode unknownAreaCode; ///< where a number with no known area code is split
    };
    /// Which numbers without national prefix are completed with the installation's area code.
    enum class LocalRule { AnyFirstDigit, FirstDigitTwoToNine, None };
    /// How a national number with no known area code is written (one-pass plans).
    enum class UnknownAreaForm {
        NationalPrefixInParentheses, // "+31 (0) " + national number
        FirstTwoDigits               // the first two digits in parentheses, the rest behind
    };
    /// What tells one one-pass plan's conversion from another's.
    struct OnePassRules {
        const char* callingCode;         ///< the country's, "31"
        std::size_t minimumLength;       ///< shorter numbers come back unchanged
        LocalRule localRule;             ///< which numbers without national prefix are completed
        UnknownAreaForm unknownAreaForm; ///< how a number with no known area code is written
        const char* closingTrace;        ///< the trace text in front of the result
    };

    ~KesAreaCodePlan() override;

    /// From the file's "Translate" ("1" is true); true when the file does not say. When false,
    /// numbers without national prefix are not completed with the installation's area code.
    bool translate;
    /// The longest area code read (0 if none).
    int maxAreaCodeLength;
    /// The "AC_" keys read, repeated codes included.
    int areaCodeCount;
    /// The area codes read (empty when no file could be read).
    Poco::AutoPtr<KesAreaCodeTree> areaCodeTree;

protected:
    /// Reads the plan file. Missing or malformed files throw nothing: the reading stops at the
    /// first problem and keeps what it loaded (a missing file leaves the tree empty).
    KesAreaCodePlan(const PlanFile& file, Logger* planLogger);

    /// The length of the stored area code at the head of `national` (0 if none), traced.
    std::size_t areaCodeAt(std::string_view national, Logger* planLogger);

    /// `national` (a national number without its prefix) split at its stored area code, or written
    /// in `unknownAreaForm` when it begins with none.
    std::string placeAtAreaCode(std::string_view callingCode, std::string_view national,
                                UnknownAreaForm unknownAreaForm, Logger* planLogger);
    /// The canonical form "+" callingCode " (" areaCode ") " subscriber.
    static std::string canonical(std::string_view callingCode, std::string_view areaCode,
                                 std::string_view subscriber);
    /// When `translate` is on and the installation has an area code, `result` becomes the local
    /// number behind that area code; answers whether it did.
    bool completeWithOwnAreaCode(std::string_view callingCode, std::string_view local,
                                 KesDialRulesItem* rules, std::string& result);

    /// The number as it stands, then behind the installation's outside-line prefix.
    std::string convertInTwoPasses(const TwoPassRules& plan, const std::string& number,
                                   KesDialRulesItem* rules, Logger* planLogger);

    /// The number as it stands; no outside-line prefix handling.
    std::string convertInOnePass(const OnePassRules& plan, const std::string& number, KesDialRulesItem* rules,
                                 Logger* planLogger);

private:
    void loadAreaCodes(const PlanFile& file, Logger* planLogger);
    bool placeNational(const TwoPassRules& plan, std::string_view withPrefix, KesDialRulesItem* rules,
                       Logger* planLogger, std::string& result);
};

} // namespace numbering

#endif
