#include "Init.h"

#include "ConfigurationDirectory.h"
#include "JsonLine.h"

#include "numbering/KesNumberingConfig.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

int runInit(const Options& options) {
    const fs::path target =
        options.numbers.empty() ? numbering::KesNumberingConfig::configDirectory() : options.numbers.front();
    const fs::path source = shippedConfiguration();
    std::error_code error;
    fs::create_directories(target, error);
    if (error) {
        std::cerr << "numbering: cannot create " << target.string() << ": " << error.message() << "\n";
        return 2;
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(source, error))
        if (entry.path().extension() == ".properties")
            files.push_back(entry.path());
    if (error || files.empty()) {
        std::cerr << "numbering: no shipped configuration in " << source.string() << "\n";
        return 2;
    }
    std::sort(files.begin(), files.end());
    int status = 0;
    for (const fs::path& file : files) {
        const fs::path destination = target / file.filename();
        std::string outcome = "kept";
        // symlink_status: a dangling link is a file that is there, too.
        if (!fs::exists(fs::symlink_status(destination)))
            outcome = fs::copy_file(file, destination, fs::copy_options::none, error) ? "wrote" : "failed";
        if (error)
            status = 2;
        if (options.json) {
            JsonLine line;
            line.add("command", "init").add("file", destination.string()).add("result", outcome);
            std::cout << (error ? line.add("error", error.message()) : line).text() << '\n';
        } else if (error) {
            std::cerr << "numbering: cannot write " << destination.string() << ": " << error.message()
                      << "\n";
        } else {
            std::cout << outcome << ' ' << destination.string()
                      << (outcome == "kept" ? " (already there)" : "") << '\n';
        }
        error.clear();
    }
    return status;
}
