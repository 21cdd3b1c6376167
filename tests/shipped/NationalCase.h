#ifndef NUMBERING_TESTS_SHIPPED_NATIONALCASE_H
#define NUMBERING_TESTS_SHIPPED_NATIONALCASE_H

// One example number typed in national form at an installation of its own country, and the checks
// that the shipped configuration turns it into the right international number.

#include "ExampleNumbers.h"

#include <ostream>
#include <string>

namespace shipped {

enum class Kind { Fixed, Mobile };

struct NationalCase {
    std::string country; // the installation's country, which is also the number's
    Kind kind;
    std::string extPrefix;
    std::string ownArea;
    std::string typed; // what the user types: a national prefix and the national significant number
    std::string callingCode;
    std::string nsn;
    bool areaLayout; // "+cc (area or trunk prefix) subscriber" expected, else "+cc nsn"
};

/// The example of `kind` of `examples` typed behind `typedPrefix`, or behind the country's trunk
/// prefix when `typedPrefix` is null, at an installation with `extPrefix` and `ownArea`.
NationalCase nationalCase(const CountryExamples& examples, Kind kind, const std::string& extPrefix,
                          const std::string& ownArea, const char* typedPrefix = nullptr);

/// The calling codes that have a country plan.
bool hasPlan(const std::string& callingCode);

/// "FR_fixed": a test name.
std::string name(const NationalCase& c);

/// Checks the canonical number (its layout), the GSM form ("+" + calling code + national
/// significant number, blanks aside), that the canonical number dials back to the outside-line
/// prefix and the typed digits, and that nothing was logged as an error.
void expectInternationalNumber(const NationalCase& c);

/// The failing input in every message: country, kind, typed number and installation.
std::ostream& operator<<(std::ostream& out, const NationalCase& c);

} // namespace shipped

#endif
