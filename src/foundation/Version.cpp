#include "numbering/Version.h"

namespace numbering {

const char* libraryVersion() {
    return NUMBERING_VERSION_STRING;
}

} // namespace numbering
