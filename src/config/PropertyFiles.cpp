#include "PropertyFiles.h"

#include "PropertyText.h"
#include "lifecycle/Generation.h"
#include "numbering/Logger.h"

#include <Poco/Error.h>
#include <Poco/String.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace numbering {

namespace {

/// Closes a descriptor when reading ends, however it ends.
class Descriptor {
public:
    explicit Descriptor(int opened) : descriptor(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(descriptor); }
    int get() const { return descriptor; }

private:
    int descriptor;
};

/// A property file read by readPropertyText, with the keys and values Poco's own load would give.
class PropertiesInMemory : public Poco::Util::PropertyFileConfiguration {
public:
    explicit PropertiesInMemory(std::string_view text) {
        readPropertyText(text, [this](std::string_view key, std::string_view value) {
            setRaw(std::string(key), std::string(value));
        });
    }

protected:
    ~PropertiesInMemory() override = default;
};

[[noreturn]] void cannotRead(int error) {
    throw Poco::OpenFileException(Poco::toLower(Poco::Error::getMessage(error)));
}

} // namespace

std::string readPropertyFile(const std::string& path) {
    // Without O_NONBLOCK, opening a FIFO would wait for a writer; the file type is then taken from
    // the opened descriptor, so that the file read is the file looked at.
    const int opened = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0) {
        if (errno == ENOENT)
            throw Poco::FileNotFoundException(path);
        cannotRead(errno);
    }
    const Descriptor file(opened);
    struct stat status;
    if (::fstat(file.get(), &status) != 0)
        cannotRead(errno);
    if (!S_ISREG(status.st_mode))
        throw Poco::OpenFileException(S_ISDIR(status.st_mode) ? "it is a directory"
                                                              : "it is not a regular file");
    // One byte more than the file's size, so that the read that finds its end needs no more room.
    std::string text(static_cast<std::size_t>(status.st_size) + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        if (length == text.size())
            text.resize(2 * text.size()); // the file grew while it was read
        const ssize_t got = ::read(file.get(), &text[length], text.size() - length);
        if (got == 0)
            break;
        if (got < 0) {
            if (errno == EINTR)
                continue;
            cannotRead(errno);
        }
        length += static_cast<std::size_t>(got);
    }
    text.resize(length);
    return text;
}

std::string readInstallationOrDefault(const Generation& generation, const std::string& installationName,
                                      const std::string& defaultName, Logger* logger,
                                      const std::string& textWhenUnopenable,
                                      const std::string& textWhenNotFound) {
    try {
        return readPropertyFile(generation, installationName);
    } catch (const Poco::OpenFileException&) {
        logger->info(textWhenUnopenable);
    } catch (const Poco::FileNotFoundException&) {
        logger->info(textWhenNotFound);
    }
    return readPropertyFile(generation, defaultName);
}

std::unique_ptr<const FileSnapshot> readFiles(const std::string& directory,
                                              const std::vector<std::string>& names) {
    std::unique_ptr<FileSnapshot> snapshot(new FileSnapshot);
    for (const std::string& name : names) {
        FileSnapshot::File& file = snapshot->files[name];
        try {
            file = {FileSnapshot::Outcome::Read, readPropertyFile(directory + name)};
        } catch (const Poco::FileNotFoundException&) {
            file = {FileSnapshot::Outcome::NotFound, std::string()};
        } catch (const Poco::OpenFileException& e) {
            file = {FileSnapshot::Outcome::Unopenable, e.message()};
        }
    }
    return snapshot;
}

std::string readPropertyFile(const FileSnapshot& files, const std::string& directory,
                             const std::string& name) {
    const std::string path = directory + name;
    const auto taken = files.files.find(name);
    if (taken == files.files.end()) // a file no reload expected
        return readPropertyFile(path);
    const FileSnapshot::File& file = taken->second;
    if (file.outcome == FileSnapshot::Outcome::NotFound)
        throw Poco::FileNotFoundException(path);
    if (file.outcome == FileSnapshot::Outcome::Unopenable)
        throw Poco::OpenFileException(file.text);
    return file.text;
}

std::string readPropertyFile(const Generation& generation, const std::string& name) {
    const FileSnapshot* snapshot = generation.files();
    if (snapshot == nullptr)
        return readPropertyFile(generation.directory + name);
    return readPropertyFile(*snapshot, generation.directory, name);
}

Poco::AutoPtr<Poco::Util::PropertyFileConfiguration> parseProperties(std::string_view text) {
    return new PropertiesInMemory(text);
}

NumberedProperties::NumberedProperties(std::string_view text, std::string prefix)
    : keyPrefix(std::move(prefix)) {
    buffer.reserve(text.size()); // no value is longer than the text it is read from
    readPropertyText(text, [this](std::string_view key, std::string_view value) { keep(key, value); });
}

NumberedProperties::~NumberedProperties() = default;

void NumberedProperties::setRaw(const std::string& key, const std::string& value) {
    keep(key, value);
}

void NumberedProperties::keep(std::string_view key, std::string_view value) {
    const int index = numberedIndex(keyPrefix, key);
    if (index < 0) {
        PropertyFileConfiguration::setRaw(std::string(key), std::string(value));
        return;
    }
    const auto slot = static_cast<std::size_t>(index);
    if (slot == values.size())
        values.emplace_back(); // the list in order, as files hold it: no resize call per key
    else if (slot > values.size())
        values.resize(slot + 1);
    values[slot] =
        Value{static_cast<std::uint32_t>(buffer.size()), static_cast<std::uint32_t>(value.size()), true};
    buffer += value;
}

bool NumberedProperties::getRaw(const std::string& key, std::string& value) const {
    const int index = numberedIndex(keyPrefix, key);
    if (index < 0)
        return PropertyFileConfiguration::getRaw(key, value);
    const auto slot = static_cast<std::size_t>(index);
    if (slot >= values.size() || !values[slot].present)
        return false;
    value.assign(valueOf(values[slot]));
    return true;
}

} // namespace numbering
