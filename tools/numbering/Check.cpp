#include "Check.h"

#include "numbering/KesConfigurationCheck.h"

#include <iostream>

using numbering::KesConfigurationCheck;
using numbering::KesConfigurationFinding;
using numbering::KesConfigurationReport;
using Severity = KesConfigurationFinding::Severity;

namespace {

std::string counted(int count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

int runCheck(const std::string& directory) {
    const KesConfigurationReport report = KesConfigurationCheck::check(directory);
    for (const KesConfigurationFinding& finding : report.findings)
        std::cout << finding.text() << '\n';
    std::cout.flush();
    // Always a last line, so that a clean directory is not taken for a check that never ran.
    std::cerr << counted(report.count(Severity::Error), "error") << ", "
              << counted(report.count(Severity::Warning), "warning") << ", "
              << counted(report.count(Severity::Note), "note") << " in "
              << counted(static_cast<int>(report.files.size()), "file")
              << (report.findings.empty() ? ": the configuration is clean" : "") << '\n';
    return report.status();
}
