// Runs a fuzz target without a fuzzer, for any compiler: over every file of a corpus, then over mutations of
// them until the time is up.
//
//     form_replay SECONDS SEED FOLDER

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "numeric/draws.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> readCorpus(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<Bytes> corpus;
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return corpus;
}

class Mutations {
public:
    Mutations(const std::vector<Bytes>& corpus, std::uint64_t seed) : corpus_(corpus), draws_(seed) {}

    Bytes next() {
        Bytes bytes = corpus_[below(corpus_.size())];
        for (std::size_t times = 1 + below(8); times > 0; --times) {
            change(bytes);
        }
        return bytes;
    }

private:
    const std::vector<Bytes>& corpus_;
    tavrune::SeededDraws draws_;

    std::size_t below(std::size_t n) {
        return static_cast<std::size_t>(static_cast<double>(draws_.Rnd()) * static_cast<double>(n));
    }
    std::uint8_t anyByte() { return static_cast<std::uint8_t>(below(256)); }

    void change(Bytes& bytes) {
        const auto at = [&] { return static_cast<std::ptrdiff_t>(below(bytes.size())); };
        switch (below(4)) {
            case 0:
                bytes.push_back(anyByte());
                break;
            case 1:
                if (!bytes.empty()) {
                    bytes[below(bytes.size())] = anyByte();
                }
                break;
            case 2:
                if (!bytes.empty()) {
                    bytes.erase(bytes.begin() + at());
                }
                break;
            default: {
                // The end of another one, behind a beginning of this.
                const Bytes& other = corpus_[below(corpus_.size())];
                if (!bytes.empty()) {
                    bytes.resize(below(bytes.size()) + 1);
                }
                bytes.insert(bytes.end(),
                             other.begin() + static_cast<std::ptrdiff_t>(below(other.size() + 1)),
                             other.end());
            }
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "%s SECONDS SEED FOLDER\n", argv[0]);
        return EXIT_FAILURE;
    }
    const std::chrono::seconds allowed(std::atoi(argv[1]));
    const auto seed = static_cast<std::uint64_t>(std::atoll(argv[2]));
    const std::vector<Bytes> corpus = readCorpus(argv[3]);
    if (corpus.empty()) {
        std::fprintf(stderr, "%s is empty\n", argv[3]);
        return EXIT_FAILURE;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    const auto until = std::chrono::steady_clock::now() + allowed;
    for (const Bytes& bytes : corpus) {
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    Mutations mutations(corpus, seed);
    long long count = 0;
    for (; std::chrono::steady_clock::now() < until; ++count) {
        const Bytes bytes = mutations.next();
        // What a crash leaves as the last line tells how to come back to it.
        std::fprintf(stderr, "seed %llu, mutation %lld\n", static_cast<unsigned long long>(seed), count);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%zu files and %lld mutations of them\n", corpus.size(), count);
    return EXIT_SUCCESS;
}
