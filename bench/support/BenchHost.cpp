#include "BenchHost.h"

#include "numbering/Logger.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <malloc.h>
#include <new>
#include <sstream>
#include <unistd.h>

// The benchmarks are the host: debug tracing off, error lines (there should be none) to stderr.
bool Logger::m_Traces = false;

void FlogWrite(const char* text, short) {
    if (std::strncmp(text, "ERROR ", 6) == 0)
        std::fprintf(stderr, "%s\n", text);
}

// Every heap allocation of the program, the library's included (the library's operator new
// resolves to these), is counted per thread, so that threads do not share a counter's cache line.
namespace {

thread_local std::uint64_t allocationCount = 0;

void* allocate(std::size_t size) {
    ++allocationCount;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void* allocateAligned(std::size_t size, std::align_val_t alignment) {
    ++allocationCount;
    void* memory = nullptr;
    std::size_t align = static_cast<std::size_t>(alignment);
    if (::posix_memalign(&memory, align < sizeof(void*) ? sizeof(void*) : align, size == 0 ? 1 : size) != 0)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocationCount;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    ++allocationCount;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocateAligned(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocateAligned(size, alignment);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}

namespace benchhost {

namespace {

const char* const CONFIG_DIR = "NUMBERING_CONFIG_DIR";
// Set in the program run again over a directory it wrote itself, which it removes at the end.
const char* const WRITTEN_DIR = "NUMBERING_BENCH_WRITTEN_DIR";

std::vector<std::string> writtenFiles;

std::string withSlash(std::string directory) {
    if (directory.empty() || directory.back() != '/')
        directory += '/';
    return directory;
}

[[noreturn]] void runAgain(char** argv) {
    ::execv("/proc/self/exe", argv);
    std::perror("execv /proc/self/exe");
    std::exit(1);
}

} // namespace

void readConfigurationFrom(const std::string& directory, char** argv) {
    const std::string wanted = withSlash(directory);
    const char* current = std::getenv(CONFIG_DIR);
    if (current != nullptr && withSlash(current) == wanted)
        return;
    ::setenv(CONFIG_DIR, wanted.c_str(), 1);
    runAgain(argv);
}

void useShippedWorld(char** argv) {
    readConfigurationFrom(NUMBERING_DATA_DIR, argv);
}

void useWrittenConfiguration(const std::vector<ConfigurationFile>& files, char** argv) {
    for (const ConfigurationFile& file : files)
        writtenFiles.push_back(file.name);
    const char* written = std::getenv(WRITTEN_DIR);
    const char* current = std::getenv(CONFIG_DIR);
    if (written != nullptr && current != nullptr && withSlash(written) == withSlash(current))
        return;
    char directory[] = "/tmp/numbering-bench-XXXXXX";
    if (::mkdtemp(directory) == nullptr) {
        std::perror("cannot make the configuration directory");
        std::exit(1);
    }
    for (const ConfigurationFile& file : files) {
        std::ofstream out(std::string(directory) + "/" + file.name, std::ios::binary | std::ios::trunc);
        out << file.content;
        if (!out) {
            std::perror("cannot write the configuration");
            std::exit(1);
        }
    }
    ::setenv(WRITTEN_DIR, directory, 1);
    ::setenv(CONFIG_DIR, directory, 1);
    runAgain(argv);
}

void removeWrittenConfiguration() {
    const char* written = std::getenv(WRITTEN_DIR);
    if (written == nullptr)
        return;
    for (const std::string& name : writtenFiles)
        std::remove((std::string(written) + "/" + name).c_str());
    ::rmdir(written);
}

std::uint64_t allocations() {
    return allocationCount;
}

std::size_t heapInUse() {
    struct mallinfo2 info = ::mallinfo2();
    // Small blocks in the arenas plus the large ones malloc maps by themselves.
    return info.uordblks + info.hblkhd;
}

const std::vector<Input>& inputs() {
    static const std::vector<Input> rows = [] {
        std::vector<Input> read;
        std::ifstream file(NUMBERING_BENCH_INPUTS);
        if (!file) {
            std::fprintf(stderr, "cannot read %s\n", NUMBERING_BENCH_INPUTS);
            std::exit(1);
        }
        std::string line;
        std::getline(file, line); // the column names
        while (std::getline(file, line)) {
            if (line.empty())
                continue;
            std::vector<std::string> fields;
            std::istringstream columns(line);
            std::string field;
            while (std::getline(columns, field, '\t'))
                fields.push_back(field);
            fields.resize(6);
            read.push_back(
                {fields[0], fields[1], std::atoi(fields[2].c_str()), fields[3], fields[4], fields[5]});
        }
        return read;
    }();
    return rows;
}

std::unique_ptr<numbering::KesDialRulesItem> installationOf(const Input& input) {
    return std::make_unique<numbering::KesDialRulesItem>(input.country, input.outsideLinePrefix,
                                                         input.localLength, input.areaCode, 0, "");
}

numbering::KesDialRulesItem* Installations::of(const Input& input) {
    std::unique_ptr<numbering::KesDialRulesItem>& rules = made[input.country];
    if (!rules)
        rules = installationOf(input);
    return rules.get();
}

std::vector<Conversion> Installations::conversions(const std::string& kinds) {
    std::vector<Conversion> selected;
    const std::string wanted = "," + kinds + ",";
    for (const Input& input : inputs())
        if (wanted.find("," + input.kind + ",") != std::string::npos)
            selected.push_back({of(input), input.number, input.country});
    return selected;
}

} // namespace benchhost
