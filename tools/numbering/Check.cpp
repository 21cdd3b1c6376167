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
using Severity = KesConfigurationFinding::Severity;

namespace {

std::string counted(int count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

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
        if (options.json) {
            JsonLine line;
            line.add("command", "check")
                .add("file", finding.file)
                .add("line", finding.line)
                .add("key", finding.key)
                .add("severity", KesConfigurationFinding::severityName(finding.severity))
                .add("message", finding.message);
            if (finding.alike > 0)
                line.add("alike", finding.alike);
            std::cout << line.text() << '\n';
        } else {
            std::cout << finding.text() << '\n';
        }
    }
    std::cout.flush();
    // Always a last line, so that a clean directory is not taken for a check that never ran; text on
    // standard error with --json too, where it stays out of the JSON lines.
    const int files = static_cast<int>(report.files.size()) + (options.siteFile.empty() ? 0 : 1);
    std::cerr << counted(report.count(Severity::Error), "error") << ", "
              << counted(report.count(Severity::Warning), "warning") << ", "
              << counted(report.count(Severity::Note), "note") << " in " << counted(files, "file")
              << (report.findings.empty() ? ": the configuration is clean" : "") << '\n';
    return report.status();
}
