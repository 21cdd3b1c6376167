#ifndef NUMBERING_SRC_RULES_FACADEINTERNALS_H
#define NUMBERING_SRC_RULES_FACADEINTERNALS_H

// The facade's formatting steps as its conversions call them: on references and views, so that a
// conversion copies no number only to hand it on. The public operations of the same names wrap them.

#include <string>
#include <string_view>

namespace numbering {

/// generateDefaultCanonicalNumber.
std::string defaultCanonicalNumber(std::string strPhoneNumber, const std::string& strCountryCode,
                                   std::string_view strAreaCode);

/// formatCanonicalNumber.
std::string formatCanonical(const std::string& strCanPhoneNumber, const std::string& strPattern);

/// formatToGSMCanonicalNumber.
std::string formatToGsm(const std::string& strCanPhoneNumber);

} // namespace numbering

#endif
