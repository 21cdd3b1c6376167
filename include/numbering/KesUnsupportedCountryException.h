#ifndef NUMBERING_KESUNSUPPORTEDCOUNTRYEXCEPTION_H
#define NUMBERING_KESUNSUPPORTEDCOUNTRYEXCEPTION_H

#include "numbering/Export.h"

#include <stdexcept>
#include <string>

namespace numbering {

/// A country code that the dialing rules do not know. The standard base is private on purpose:
/// handlers for std::runtime_error or std::exception do not catch it, only a handler for this class.
class NUMBERING_API KesUnsupportedCountryException : private std::runtime_error {
public:
    /// what() is "Country code '<countryCode>' is not supported".
    explicit KesUnsupportedCountryException(std::string countryCode);
    /// what() is "Country code '<countryCode>' is not supported : <reason>".
    KesUnsupportedCountryException(std::string countryCode, std::string reason);

    using std::runtime_error::what;
};

} // namespace numbering

#endif
