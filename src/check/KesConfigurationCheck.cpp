#include "numbering/KesConfigurationCheck.h"

#include "FileChecks.h"
#include "RepeatedFindings.h"
#include "SnapshotCheck.h"
#include "TextEncoding.h"
#include "cnp/ConfigurationFiles.h"
#include "numbering/KesCNPRegistry.h"
#include "numbering/KesNumberingConfig.h"

#include <Poco/Exception.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace numbering {

const char* KesConfigurationFinding::severityName(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    default:
        return "error";
    }
}

std::string KesConfigurationFinding::text() const {
    return file + ':' + (line > 0 ? std::to_string(line) + ':' : std::string()) + ' ' +
           severityName(severity) + ": " + message;
}

int KesConfigurationReport::status() const {
    int status = 0;
    for (const KesConfigurationFinding& finding : findings)
        status = std::max(status, static_cast<int>(finding.severity));
    return status;
}

int KesConfigurationReport::count(KesConfigurationFinding::Severity severity) const {
    int found = 0;
    for (const KesConfigurationFinding& finding : findings)
        if (finding.severity == severity)
            found += finding.alike > 0 ? finding.alike : 1;
    return found;
}

namespace configcheck {

namespace {

/// A file the library reads, and what reading neither it nor its default means.
struct FileRole {
    std::string name;
    std::string defaultName; // "" when the library reads no default
    Severity severityWhenNone;
    std::string whenNone;
    std::string loadedItems; // what the file gives ("countries"), to list what the installation lacks
};

using Check = std::function<std::vector<std::string>(CheckedFile&)>;

/// A file opened for the check, or why it could not be.
struct Opening {
    std::optional<PropertyText> text;
    bool absent = false;
    std::string whyNot;
};

Opening openFile(const FileSnapshot& files, const std::string& directory, const std::string& name) {
    Opening opening;
    try {
        opening.text = openPropertyFile(files, directory, name);
    } catch (const Poco::FileNotFoundException&) {
        opening.absent = true;
        opening.whyNot = "it does not exist";
    } catch (const Poco::Exception& e) {
        opening.whyNot = e.message();
    } catch (const std::exception& e) {
        opening.whyNot = e.what();
    }
    return opening;
}

class DirectoryCheck {
public:
    DirectoryCheck(std::string path, const FileSnapshot& snapshot)
        : directory(std::move(path)), files(snapshot) {}

    KesConfigurationReport run() {
        DialingRules rules;
        const bool plainRules = checkFile(
            {"dialingrules.properties", "dialingrules_default.properties", Severity::Error,
             "the library knows no country and refuses every installation as unsupported", "countries"},
            [&](CheckedFile& file) { return checkDialingRules(file, rules); },
            [](CheckedFile& file) {
                DialingRules other;
                return checkDialingRules(file, other);
            });
        if (!plainRules)
            rules = DialingRules(); // its garbled rows would only garble the findings about the other files
        const Check masks = [&](CheckedFile& file) { return checkMasks(file, rules); };
        checkFile({"dlr_cnp_mask.properties", "dlr_cnp_mask_default.properties", Severity::Error,
                   "every canonical number keeps only its subscriber number when laid out",
                   "calling codes with a mask"},
                  masks, masks);
        std::optional<bool> firstSwitch;
        checkFile(
            {"specific_format_activation.properties", "specific_format_activation_default.properties",
             Severity::Warning, "the library logs an error, and every plan stays on", ""},
            [&](CheckedFile& file) {
                firstSwitch = checkActivation(file, rules);
                return std::vector<std::string>();
            },
            nullptr);
        for (const KesCNPRegistry::Plan& plan : KesCNPRegistry::plans()) {
            const std::string code = plan.callingCode;
            if (!plan.readsAreaCodes() || !rules.usesCallingCode(code) ||
                !specificFormatActive(code, firstSwitch))
                continue;
            const AreaCodePlan areaCodePlan{plan.callingCode,
                                            plan.reads == KesCNPRegistry::Reads::TranslateAndAreaCodes};
            const Check areaCodes = [&](CheckedFile& file) { return checkAreaCodes(file, areaCodePlan); };
            checkFile({plan.installationFile(), plan.defaultFile(), Severity::Error,
                       "the plan of +" + code + " loads no area code", "area codes"},
                      areaCodes, areaCodes);
        }
        if (rules.usesCallingCode("57")) {
            // The Colombian dialing strategy reads the installation file only, never a default.
            std::string unread;
            if (!open("tz310cnp_57_default.properties").absent)
                unread = " (it never reads tz310cnp_57_default.properties)";
            checkFile(
                {"tz310cnp_57.properties", "", Severity::Warning,
                 "the Colombian dialing dials operator 9 and recognises no operator" + unread, ""},
                [](CheckedFile& file) {
                    checkOperators(file);
                    return std::vector<std::string>();
                },
                nullptr);
        }
        sortFindings();
        countRepeatedFindings(report.findings);
        return std::move(report);
    }

private:
    /// Checks the file of `role` that the library reads with `check`; when that is an installation
    /// file beside a default, lists what `load` finds in the default and not in it. False when the
    /// file in use is in another encoding than plain text.
    bool checkFile(const FileRole& role, const Check& check, const Check& load) {
        const std::string installation = directory + role.name;
        const std::string fallback = role.defaultName.empty() ? std::string() : directory + role.defaultName;
        report.files.push_back({installation, fallback, std::string()});
        Opening opened = open(role.name);
        std::string inUse = installation;
        if (!opened.text) {
            if (fallback.empty()) {
                addFinding(opened.absent ? role.severityWhenNone : Severity::Error, installation,
                           (opened.absent ? "missing" : "cannot be opened (" + opened.whyNot + ")") + ": " +
                               role.whenNone);
                return true;
            }
            if (!opened.absent)
                addFinding(Severity::Error, installation,
                           "cannot be opened (" + opened.whyNot + "): the library reads " + role.defaultName +
                               " instead");
            Opening defaultOpened = open(role.defaultName);
            if (!defaultOpened.text) {
                addFinding(
                    role.severityWhenNone, fallback,
                    "cannot be opened (" + defaultOpened.whyNot + ")" +
                        (opened.absent ? ", and " + role.name + " does not exist either" : std::string()) +
                        ": " + role.whenNone);
                return true;
            }
            opened = std::move(defaultOpened);
            inUse = fallback;
        }
        report.files.back().inUse = inUse;
        // A file in another encoding gives that one finding: the keys the reader makes of it are
        // garbled, and so would be every finding about them. It is still read, for what the
        // checks of the other files need to know of it.
        const std::string encoding = encodingProblem(opened.text->text);
        if (!encoding.empty())
            addFinding(Severity::Error, inUse, encoding);
        CheckedFile file(inUse, std::move(*opened.text), encoding.empty() ? &report.findings : nullptr);
        const std::vector<std::string> loaded = check(file);
        file.checkText();
        if (inUse == installation && !fallback.empty())
            compareWithDefault(role, file, loaded, load);
        return encoding.empty();
    }

    void compareWithDefault(const FileRole& role, CheckedFile& file, const std::vector<std::string>& loaded,
                            const Check& load) {
        Opening defaults = open(role.defaultName);
        if (!defaults.text)
            return;
        file.report(Severity::Note, std::string(),
                    "in use: " + role.defaultName + " is not read at all (the two files are never merged)");
        if (!load)
            return;
        CheckedFile defaultFile(directory + role.defaultName, std::move(*defaults.text), nullptr);
        const std::set<std::string> present(loaded.begin(), loaded.end());
        std::vector<std::string> lacking = load(defaultFile);
        lacking.erase(std::remove_if(lacking.begin(), lacking.end(),
                                     [&](const std::string& item) { return present.count(item) != 0; }),
                      lacking.end());
        if (!lacking.empty())
            file.report(Severity::Warning, std::string(),
                        "lacks " + std::to_string(lacking.size()) + " of the " + role.loadedItems + " of " +
                            role.defaultName + ", which the library does not read: " + listed(lacking));
    }

    Opening open(const std::string& name) const { return openFile(files, directory, name); }

    void addFinding(Severity severity, const std::string& path, const std::string& message) {
        report.findings.push_back({severity, path, std::string(), 0, message});
    }

    /// Each file's findings together, in the order the files are read, by line.
    void sortFindings() {
        std::map<std::string, std::size_t> rank;
        for (const KesConfigurationFinding& finding : report.findings)
            rank.emplace(finding.file, rank.size());
        std::stable_sort(report.findings.begin(), report.findings.end(),
                         [&](const KesConfigurationFinding& a, const KesConfigurationFinding& b) {
                             return std::make_pair(rank.at(a.file), a.line) <
                                    std::make_pair(rank.at(b.file), b.line);
                         });
    }

    std::string directory;
    const FileSnapshot& files;
    KesConfigurationReport report;
};

} // namespace

KesConfigurationReport checkFiles(const std::string& directory, const FileSnapshot& files) {
    return DirectoryCheck(directory, files).run();
}

} // namespace configcheck

KesConfigurationReport KesConfigurationCheck::check(const std::string& directory) {
    std::string path = directory;
    if (path.empty() || path.back() != '/')
        path += '/';
    return configcheck::checkFiles(path, *readConfigurationFiles(path));
}

KesConfigurationReport KesConfigurationCheck::check() {
    return check(KesNumberingConfig::configDirectory());
}

} // namespace numbering
