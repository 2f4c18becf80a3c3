#include <tano/save_file.h>

#include "file_descriptor.h"
#include "file_name.h"

#include <QFile>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>

#define XXH_INLINE_ALL // so that programs need not load a library for it
#include <xxhash.h>

namespace Tano {
namespace {

std::string digestOf(const XXH128_hash_t &hash) {
    XXH128_canonical_t bytes;
    XXH128_canonicalFromHash(&bytes, hash);
    return {std::begin(bytes.digest), std::end(bytes.digest)};
}

} // namespace

FileFingerprint FileFingerprint::ofContent(const std::string &content) {
    return {std::int64_t(content.size()), digestOf(XXH3_128bits(content.data(), content.size()))};
}

FileFingerprint FileFingerprint::ofFile(const std::string &path) {
    const std::string name = nativeName(path);
    struct stat status = {};
    if (::stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) // a pipe would block open()
        return {};
    const FileDescriptor opened(::open(name.c_str(), O_RDONLY | O_CLOEXEC));
    QFile file;
    if (!opened || !file.open(opened.number(), QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    XXH3_state_t state;
    XXH3_128bits_reset(&state);
    std::array<char, std::size_t(1) << 16> piece{};
    for (;;) {
        const qint64 size = file.read(piece.data(), qint64(piece.size()));
        if (size < 0)
            return {};
        if (size == 0)
            return {file.pos(), digestOf(XXH3_128bits_digest(&state))};
        XXH3_128bits_update(&state, piece.data(), std::size_t(size));
    }
}

} // namespace Tano
