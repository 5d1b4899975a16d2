// Runs a fuzz target where libFuzzer is not at hand (the g++ build): each file of the
// given corpus folders once, then for a few seconds inputs mutated from them by a
// generator with a fixed seed, so that every run tries the same inputs in the same
// order. A crash or an uncaught exception ends the process abnormally and leaves the
// input in the file crash-input of the working folder.
//
//   <target>_replay [--seconds=N] FOLDER...      (N defaults to 3)

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

constexpr size_t kMaxInputSize = 4096;
constexpr uint64_t kSeed = 0x5a56580146555a5aULL;

// The input under test, for the signal handler.
const char* volatile currentData = nullptr;
volatile size_t currentSize = 0;

extern "C" void SaveInputAndDie(int sig) {
    int fd = ::open("crash-input", O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd >= 0) {
        ssize_t ignored = ::write(fd, currentData, currentSize);
        (void)ignored;
        ::close(fd);
    }
    std::signal(sig, SIG_DFL);
    std::raise(sig);
}

void Run(const std::string& input) {
    currentData = input.data();
    currentSize = input.size();
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
}

// splitmix64: small, and the same sequence with every compiler and library.
class Random {
  public:
    uint64_t next() {
        uint64_t z = (state_ += 0x9e3779b97f4a7c15ULL);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
        return z ^ (z >> 31);
    }
    size_t below(size_t limit) { return limit == 0 ? 0 : static_cast<size_t>(next() % limit); }

  private:
    uint64_t state_ = kSeed;
};

// One change: a flipped bit, a cut, an inserted separator or line break, or a
// duplicated stretch.
void MutateOnce(std::string& input, Random& random) {
    static constexpr std::string_view kInserts[] = {"\x01", "\r", "\n", "\r\n"};
    switch (random.below(4)) {
        case 0:
            if (!input.empty())
                input[random.below(input.size())] ^= 1 << random.below(8);
            break;
        case 1:
            input.resize(random.below(input.size() + 1));
            break;
        case 2:
            input.insert(random.below(input.size() + 1), kInserts[random.below(4)]);
            break;
        default: {
            size_t from = random.below(input.size() + 1);
            size_t length = random.below(input.size() - from + 1);
            input.insert(random.below(input.size() + 1), input.substr(from, length));
        }
    }
}

std::string Mutate(std::string input, Random& random) {
    for (size_t count = 1 + random.below(4); count > 0; --count)
        MutateOnce(input, random);
    if (input.size() > kMaxInputSize)
        input.resize(kMaxInputSize);
    return input;
}

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// The files of the folders, in name order.
bool ReadCorpus(const std::vector<std::filesystem::path>& folders, std::vector<std::string>& out) {
    std::vector<std::filesystem::path> files;
    for (const auto& folder : folders) {
        std::error_code ec;
        for (const auto& item : std::filesystem::directory_iterator(folder, ec)) {
            if (item.is_regular_file())
                files.push_back(item.path());
        }
        if (ec) {
            std::fprintf(stderr, "Cannot read the corpus folder %s\n", folder.c_str());
            return false;
        }
    }
    std::sort(files.begin(), files.end());
    for (const auto& file : files)
        out.push_back(ReadFile(file));
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    double seconds = 3;
    std::vector<std::filesystem::path> folders;
    for (int i = 1; i < argc; ++i) {
        std::string_view arg = argv[i];
        if (arg.starts_with("--seconds="))
            seconds = std::atof(argv[i] + 10);
        else
            folders.emplace_back(arg);
    }
    std::vector<std::string> seeds;
    if (!ReadCorpus(folders, seeds))
        return 2;
    if (seeds.empty())
        seeds.emplace_back();

    std::signal(SIGSEGV, SaveInputAndDie);
    std::signal(SIGABRT, SaveInputAndDie);
    std::signal(SIGBUS, SaveInputAndDie);
    std::signal(SIGFPE, SaveInputAndDie);

    for (const std::string& seed : seeds)
        Run(seed);
    Random random;
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    unsigned long long mutated = 0;
    while (std::chrono::steady_clock::now() < end) {
        Run(Mutate(seeds[random.below(seeds.size())], random));
        ++mutated;
    }
    std::printf("%zu corpus inputs and %llu mutated inputs ran without a failure\n", seeds.size(),
                mutated);
    return 0;
}
