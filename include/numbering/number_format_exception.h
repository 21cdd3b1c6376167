#ifndef NUMBERING_NUMBER_FORMAT_EXCEPTION_H
#define NUMBERING_NUMBER_FORMAT_EXCEPTION_H

#include "numbering/Export.h"

#include <stdexcept>
#include <string>

namespace numbering {

/// A digit string holds something that is not a digit.
class NUMBERING_API number_format_exception : public std::invalid_argument {
public:
    /// `message` tells the character, its position and the string ("Unexpected digit:...").
    explicit number_format_exception(const std::string& message) : std::invalid_argument(message) {}
};

} // namespace numbering

#endif
