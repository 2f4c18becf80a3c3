// Usage: load_memory FILE
//
// Loads a manifest and prints how much that raised the peaks of heap and resident memory, and how
// much resident memory the models take beyond the records, in bytes.

#include <packagemodel/package_info_model.h>

#include <tano/package_info.h>

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <malloc.h>
#include <string>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);
}

namespace {

std::size_t taken = 0;
std::size_t peak = 0;

// The size of a block, including the heap's header before it.
std::size_t sizeOf(void *block) {
    return block ? malloc_usable_size(block) + sizeof(std::size_t) : 0;
}

void *count(void *block) {
    taken += sizeOf(block);
    peak = std::max(peak, taken);
    return block;
}

} // namespace

// Replace the C library's functions in the whole process.
extern "C" {
void *malloc(std::size_t size) {
    return count(__libc_malloc(size));
}
void *calloc(std::size_t number, std::size_t size) {
    return count(__libc_calloc(number, size));
}
void *realloc(void *block, std::size_t size) {
    const std::size_t before = sizeOf(block);
    void *moved = __libc_realloc(block, size);
    if (moved || size == 0)
        taken -= before;
    return count(moved);
}
void *aligned_alloc(std::size_t alignment, std::size_t size) {
    return count(__libc_memalign(alignment, size));
}
int posix_memalign(void **block, std::size_t alignment, std::size_t size) {
    *block = count(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}
void free(void *block) {
    taken -= sizeOf(block);
    __libc_free(block);
}
}

namespace {

// A value of /proc/self/status, in bytes.
std::size_t status(const std::string &key) {
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        std::size_t kilobytes = 0;
        if (word == key + ':' && file >> kilobytes)
            return kilobytes * 1024;
    }
    return 0;
}

// Resets the peak of the resident memory (proc(5)).
void resetResidentPeak() {
    std::ofstream("/proc/self/clear_refs") << "5\n";
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::cerr << "Usage: load_memory FILE\n";
        return EXIT_FAILURE;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    Tano::PackageInfo package;

    resetResidentPeak();
    const std::size_t residentBefore = status("VmRSS");
    const std::size_t takenBefore = peak = taken;
    if (!package.loadFromManifestFile(file)) {
        std::cerr << "load_memory: " << package.errorString() << '\n';
        return EXIT_FAILURE;
    }
    const std::size_t heap = peak - takenBefore;
    const std::size_t resident = status("VmHWM") - residentBefore;
    malloc_trim(0); // so that the models cannot use what loading has given back
    const std::size_t recordsOnly = status("VmRSS");
    const Zel::PackageInfoModel models(package);
    std::cout << heap << ' ' << resident << ' ' << status("VmRSS") - recordsOnly << '\n';
    return EXIT_SUCCESS;
}
