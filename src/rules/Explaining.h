#ifndef NUMBERING_SRC_RULES_EXPLAINING_H
#define NUMBERING_SRC_RULES_EXPLAINING_H

// The record the conversions of the calling thread fill, while KesExplanation::of runs them. At a
// decision point a conversion asks explaining() once; null, the usual case, costs nothing more.

#include "numbering/KesExplanation.h"

namespace numbering {

/// The calling thread's record, null when nobody asks for an explanation. Initial-exec, as the
/// conversion's own thread state: reached without a call.
inline thread_local KesExplanation* currentExplanation __attribute__((tls_model("initial-exec"))) = nullptr;

/// The record to fill, or null.
inline KesExplanation* explaining() {
    return currentExplanation;
}

/// Makes `record` the calling thread's record for its lifetime.
class Explaining {
public:
    explicit Explaining(KesExplanation& record) : previous(currentExplanation) {
        currentExplanation = &record;
    }
    ~Explaining() { currentExplanation = previous; }
    Explaining(const Explaining&) = delete;
    Explaining& operator=(const Explaining&) = delete;

private:
    KesExplanation* previous;
};

} // namespace numbering

#endif
