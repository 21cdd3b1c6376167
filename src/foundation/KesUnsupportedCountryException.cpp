#include "numbering/KesUnsupportedCountryException.h"

namespace numbering {

KesUnsupportedCountryException::KesUnsupportedCountryException(std::string countryCode)
    : std::runtime_error("Country code '" + countryCode + "' is not supported") {}

KesUnsupportedCountryException::KesUnsupportedCountryException(std::string countryCode, std::string reason)
    : std::runtime_error("Country code '" + countryCode + "' is not supported : " + reason) {}

} // namespace numbering
