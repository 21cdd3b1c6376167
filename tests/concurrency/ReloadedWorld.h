#ifndef NUMBERING_TESTS_RELOADEDWORLD_H
#define NUMBERING_TESTS_RELOADEDWORLD_H

// Two variants of the shipped configuration that convert a few numbers otherwise.

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
    void write(const Files& files) const;

private:
    std::filesystem::path path;
};

struct Typed {
    const char* country;
    const char* number;
};

/// Numbers whose every form differs between the variants: area codes, masks, international prefix.
extern const std::vector<Typed> RELOADED;
extern const ConfigurationCopy::Files VARIANT_A;
extern const ConfigurationCopy::Files VARIANT_B;

/// The canonical, GSM and dialled forms of one number.
std::vector<std::string> convertOnce(const Typed& typed);
std::vector<std::vector<std::string>> convertAll();

} // namespace reloaded

#endif
