// Batch mode: standard input is read in large pieces and cut into blocks of whole lines, which the
// main thread reads while the workers convert them and write them out in input order. A block is a
// few thousand numbers, milliseconds of work: the threads meet once a block, not once a line.
#include "Batch.h"

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <cstdlib>
#include <deque>
#include <memory>
#include <mutex>
#include <sched.h>
#include <string>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

/// What is read from standard input at once, and so about the size of a block.
std::size_t blockBytes() {
    // Tests shrink it to cut small inputs into many blocks.
    const char* bytes = std::getenv("NUMBERING_BATCH_BLOCK_BYTES");
    const long size = bytes != nullptr ? std::atol(bytes) : 0;
    return size > 0 ? static_cast<std::size_t>(size) : std::size_t(1) << 16;
}

/// Standard input in blocks of whole lines, each with the number of its first line. A block holds
/// what one read brought (a terminal gives a line at a time), cut after its last line break.
class Reader {
public:
    /// The next block into `lines`, the input's last line with or without its line break; false at
    /// the end of the input.
    bool next(std::string& lines, long& firstLine) {
        std::size_t end = std::string::npos; // what is pending holds no line break yet
        for (;;) {
            if (end != std::string::npos || (ended && !pending.empty())) {
                const std::size_t size = end == std::string::npos ? pending.size() : end + 1;
                lines.assign(pending, 0, size);
                pending.erase(0, size);
                firstLine = lineCount + 1;
                lineCount += std::count(lines.begin(), lines.end(), '\n');
                return true;
            }
            if (ended)
                return false;
            const std::size_t held = pending.size();
            pending.resize(held + bytes);
            ssize_t got;
            do
                got = read(STDIN_FILENO, &pending[held], bytes);
            while (got < 0 && errno == EINTR);
            pending.resize(held + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
            ended = got <= 0; // a read error ends the input, as the end of a file does
            const std::size_t last = std::string_view(pending).substr(held).rfind('\n');
            if (last != std::string_view::npos)
                end = held + last;
        }
    }

private:
    const std::size_t bytes = blockBytes();
    std::string pending; // read, not yet handed out
    long lineCount = 0;
    bool ended = false;
};

/// Converts the lines of a block, CRLF line ends taken as line breaks.
void convertBlock(const LineConverter& converter, const std::string& lines, long line, Converted& into) {
    std::string number;
    for (std::size_t start = 0; start < lines.size(); ++line) {
        std::size_t end = lines.find('\n', start);
        if (end == std::string::npos)
            end = lines.size();
        number.assign(lines, start, end - start);
        if (!number.empty() && number.back() == '\r')
            number.pop_back();
        converter.add(number, line, into);
        start = end + 1;
    }
}

struct Block {
    std::string lines;
    long firstLine = 0;
    Converted converted;
    bool done = false;
};

} // namespace

int availableCores() {
    cpu_set_t cores;
    if (sched_getaffinity(0, sizeof cores, &cores) == 0 && CPU_COUNT(&cores) > 0)
        return CPU_COUNT(&cores);
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

int convertBatch(const LineConverter& converter, int jobs, Output& output) {
    Reader reader;
    int failures = 0;
    if (jobs == 1) {
        Block block;
        while (reader.next(block.lines, block.firstLine)) {
            block.converted = Converted();
            convertBlock(converter, block.lines, block.firstLine, block.converted);
            write(output, block.converted);
            failures += block.converted.failures;
        }
        return failures;
    }

    std::mutex mutex;
    std::condition_variable queued, written;
    std::deque<Block*> waiting;                 // blocks no worker has taken yet
    std::deque<std::unique_ptr<Block>> inOrder; // blocks read and not yet written
    bool writing = false, closing = false;
    std::vector<std::thread> workers;
    for (int i = 0; i < jobs; ++i)
        workers.emplace_back([&] {
            std::unique_lock<std::mutex> lock(mutex);
            for (;;) {
                queued.wait(lock, [&] { return closing || !waiting.empty(); });
                if (waiting.empty())
                    return;
                Block* block = waiting.front();
                waiting.pop_front();
                lock.unlock();
                convertBlock(converter, block->lines, block->firstLine, block->converted);
                lock.lock();
                block->done = true;
                // Whoever finds the oldest block done writes it, and the done ones behind it: a
                // result goes out as soon as those before it have.
                while (!writing && !inOrder.empty() && inOrder.front()->done) {
                    writing = true;
                    std::unique_ptr<Block> oldest = std::move(inOrder.front());
                    inOrder.pop_front();
                    lock.unlock();
                    write(output, oldest->converted);
                    lock.lock();
                    failures += oldest->converted.failures;
                    writing = false;
                    written.notify_all();
                }
            }
        });

    // Enough blocks in flight that no worker waits for the reader, few enough to bound the memory.
    const std::size_t inFlight = 4 * static_cast<std::size_t>(jobs);
    auto block = std::make_unique<Block>();
    while (reader.next(block->lines, block->firstLine)) {
        std::unique_lock<std::mutex> lock(mutex);
        written.wait(lock, [&] { return inOrder.size() < inFlight; });
        waiting.push_back(block.get());
        inOrder.push_back(std::move(block));
        queued.notify_one();
        lock.unlock();
        block = std::make_unique<Block>();
    }
    {
        std::unique_lock<std::mutex> lock(mutex);
        written.wait(lock, [&] { return inOrder.empty(); });
        closing = true;
    }
    queued.notify_all();
    for (std::thread& worker : workers)
        worker.join();
    return failures;
}
