#ifndef NUMBERING_KESCONFIGURATIONREJECTED_H
#define NUMBERING_KESCONFIGURATIONREJECTED_H

#include "numbering/Export.h"
#include "numbering/KesConfigurationCheck.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace numbering {

/// Thrown by a reload with ReloadPolicy::RefuseErrors when the configuration check finds an error
/// in the files the reload read: the running configuration stays, and the configuration directory
/// stays the one it was. Nothing of the refusal is kept, so a later reload of corrected files
/// succeeds.
///
/// @code
/// try {
///     numbering::KesNumberingRules::reload("/etc/numbering/", numbering::ReloadPolicy::RefuseErrors);
/// } catch (const numbering::KesConfigurationRejected& refused) {
///     std::cerr << refused.what() << "\n"; // the first error and the count of the other findings
///     for (const numbering::KesConfigurationFinding& f : refused.report().findings)
///         std::cerr << f.text() << "\n";
/// }
/// @endcode
class NUMBERING_API KesConfigurationRejected : public std::runtime_error {
public:
    /// The refusal of `directory`, of which the check found `report`, with at least one error.
    /// what() is "Refused the configuration of DIRECTORY, the running configuration stays: ",
    /// the first error's text() and, when there are others, " (and N other findings)".
    KesConfigurationRejected(const std::string& directory, KesConfigurationReport report);
    ~KesConfigurationRejected() override;

    /// The directory refused, ending in "/".
    const std::string& directory() const;
    /// What the check found in the files as the reload read them.
    const KesConfigurationReport& report() const;
    /// The first error of the report: why the directory was refused.
    const KesConfigurationFinding& firstError() const;

private:
    struct Refusal;
    std::shared_ptr<const Refusal> refusal; // shared, so that copying the exception cannot throw
};

} // namespace numbering

#endif
