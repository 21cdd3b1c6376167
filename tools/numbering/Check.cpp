#include "Check.h"

#include "Installation.h"
#include "JsonLine.h"

#include "numbering/KesConfigurationCheck.h"
#include "numbering/KesNumberingRules.h"

#include <iostream>
#include <stdexcept>

using numbering::KesConfigurationCheck;
using numbering::KesConfigurationFinding;
using numbering::KesConfigurationReport;
using numbering::KesNumberingRules;

int runCheck(const std::string& directory, const Options& options) {
    KesConfigurationReport report = KesConfigurationCheck::check(directory);
    if (!options.siteFile.empty()) {
        KesNumberingRules::reload(directory); // the site is checked against this configuration
        try {
            const Installation installation = readInstallation(options);
            report.findings.insert(report.findings.end(), installation.findings.begin(),
                                   installation.findings.end());
        } catch (const std::runtime_error& e) {
            report.findings.push_back(
                {KesConfigurationFinding::Severity::Error, options.siteFile, "", 0, e.what()});
        }
        KesNumberingRules::resetInstance();
    }
    for (const KesConfigurationFinding& finding : report.findings) {
        if (options.json)
            std::cout << JsonLine()
                             .add("command", "check")
                             .add("file", finding.file)
                             .add("line", finding.line)
                             .add("key", finding.key)
                             .add("severity", KesConfigurationFinding::severityName(finding.severity))
                             .add("message", finding.message)
                             .text()
                      << '\n';
        else
            std::cout << describe(finding) << '\n';
    }
    return report.status();
}
