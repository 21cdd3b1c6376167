#ifndef NUMBERING_SRC_CNP_PLANSELFTEST_H
#define NUMBERING_SRC_CNP_PLANSELFTEST_H

// The fixed self-tests that a developer runs on a plan from a host or a debugger.

#include <cstddef>

namespace numbering {

class KesCNP;

/// The installation the self-test converts for (no exception numbers).
struct SelfTestInstallation {
    const char* country;
    const char* extPrefix;
    int localNbLength;
    const char* areaCode;
};

struct SelfTestCase {
    const char* label;
    const char* input;
};

/// Prints "Dialing rules : " and the installation, then one line per case: its label and the
/// plan's canonical form of its input. A country the dialing rules do not know is reported on
/// standard output instead of escaping to the caller.
void printPlanSelfTest(KesCNP& plan, const SelfTestInstallation& installation, const SelfTestCase* cases,
                       std::size_t count);

template <std::size_t N>
void printPlanSelfTest(KesCNP& plan, const SelfTestInstallation& installation,
                       const SelfTestCase (&cases)[N]) {
    printPlanSelfTest(plan, installation, cases, N);
}

} // namespace numbering

#endif
