// Usage: REPLAY FOLDER...
//
// Runs the fuzz target that is linked in on every file below the folders, sorted by name.

#include "target.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

int main(int argc, char **argv) {
    std::vector<fs::path> files;
    for (int i = 1; i < argc; ++i) {
        for (const auto &entry : fs::recursive_directory_iterator(argv[i])) {
            if (entry.is_regular_file())
                files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());

    for (const fs::path &path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(file), {}};
        std::cerr << path.string() << std::endl; // the last one printed is the failing one
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
    }
    std::cout << files.size() << " inputs tried\n";
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
