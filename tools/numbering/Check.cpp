#include "Check.h"

#include "numbering/KesConfigurationCheck.h"

#include <iostream>

using numbering::KesConfigurationCheck;
using numbering::KesConfigurationFinding;
using numbering::KesConfigurationReport;

int runCheck(const std::string& directory) {
    const KesConfigurationReport report = KesConfigurationCheck::check(directory);
    for (const KesConfigurationFinding& finding : report.findings) {
        std::cout << finding.file << ':';
        if (finding.line > 0)
            std::cout << finding.line << ':';
        std::cout << ' ' << KesConfigurationFinding::severityName(finding.severity) << ": " << finding.message
                  << '\n';
    }
    return report.status();
}
