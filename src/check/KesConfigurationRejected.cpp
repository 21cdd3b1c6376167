#include "numbering/KesConfigurationRejected.h"

#include <algorithm>

namespace numbering {

struct KesConfigurationRejected::Refusal {
    std::string directory;
    KesConfigurationReport report;
};

namespace {

using Severity = KesConfigurationFinding::Severity;

std::size_t firstErrorOf(const KesConfigurationReport& report) {
    const auto error =
        std::find_if(report.findings.begin(), report.findings.end(),
                     [](const KesConfigurationFinding& f) { return f.severity == Severity::Error; });
    return static_cast<std::size_t>(error - report.findings.begin());
}

std::string refusalText(const std::string& directory, const KesConfigurationReport& report,
                        std::size_t first) {
    std::string text = "Refused the configuration of " + directory + ", the running configuration stays";
    if (first == report.findings.size())
        return text;
    text += ": " + report.findings[first].text();
    const int others =
        report.count(Severity::Error) + report.count(Severity::Warning) + report.count(Severity::Note) - 1;
    if (others > 0)
        text += " (and " + std::to_string(others) + " other finding" + (others == 1 ? ")" : "s)");
    return text;
}

} // namespace

KesConfigurationRejected::KesConfigurationRejected(const std::string& directory,
                                                   KesConfigurationReport report)
    : std::runtime_error(refusalText(directory, report, firstErrorOf(report))),
      refusal(std::make_shared<const Refusal>(Refusal{directory, std::move(report)})) {}

KesConfigurationRejected::~KesConfigurationRejected() = default;

const std::string& KesConfigurationRejected::directory() const {
    return refusal->directory;
}

const KesConfigurationReport& KesConfigurationRejected::report() const {
    return refusal->report;
}

const KesConfigurationFinding& KesConfigurationRejected::firstError() const {
    return refusal->report.findings.at(firstErrorOf(refusal->report));
}

} // namespace numbering
