#ifndef NUMBERING_TESTS_RELOADEDWORLD_H
#define NUMBERING_TESTS_RELOADEDWORLD_H

// Two variants of the shipped configuration (data/) that give other results for a few numbers,
// written into directories of their own, for the tests that reload, refuse and watch.

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace reloaded {

/// A copy of the shipped configuration in a temporary directory of its own, with some files replaced.
class ConfigurationCopy {
public:
    using Files = std::vector<std::pair<std::string, std::string>>;

    ConfigurationCopy(const std::string& name, const Files& files);
    ~ConfigurationCopy();
    ConfigurationCopy(const ConfigurationCopy&) = delete;
    ConfigurationCopy& operator=(const ConfigurationCopy&) = delete;

    std::string directory() const { return path.string() + "/"; }
    /// Replaces the content of `files`.
    void write(const Files& files) const;

private:
    std::filesystem::path path;
};

/// A number typed at an installation of a country.
struct Typed {
    const char* country;
    const char* number;
};

/// Numbers whose every form differs between the two variants below: the German area codes (plan
/// file), the masks (store) and the French international prefix (dialing rules).
extern const std::vector<Typed> RELOADED;
extern const ConfigurationCopy::Files VARIANT_A;
extern const ConfigurationCopy::Files VARIANT_B;

/// The canonical, GSM and dialled forms of one number: three conversions, each on one configuration.
std::vector<std::string> convertOnce(const Typed& typed);
/// convertOnce of every RELOADED number.
std::vector<std::vector<std::string>> convertAll();

} // namespace reloaded

#endif
