#ifndef NUMBERING_SRC_CHECK_REPEATEDFINDINGS_H
#define NUMBERING_SRC_CHECK_REPEATEDFINDINGS_H

#include "numbering/KesConfigurationCheck.h"

#include <vector>

namespace numbering {
namespace configcheck {

/// Lists no more than a few findings of one kind (file, severity and message but for its
/// particulars): the others are counted in one finding after the last one listed. A damaged file
/// would otherwise bury the findings of every other kind under hundreds of lines of one.
void countRepeatedFindings(std::vector<KesConfigurationFinding>& findings);

} // namespace configcheck
} // namespace numbering

#endif
