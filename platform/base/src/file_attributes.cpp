#include "file_attributes.h"

#include <cerrno>
#include <map>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Tano {
namespace {

using ExtendedAttributes = std::map<std::string, std::string>;

// Calls a system function twice: for the required buffer size, then for the value.
template<typename Call>
std::optional<std::string> answerOf(Call call) {
    for (;;) {
        const ssize_t needed = call(nullptr, 0);
        if (needed < 0)
            return {};
        std::string answer(std::size_t(needed), '\0');
        const ssize_t size = call(answer.data(), answer.size());
        if (size >= 0) {
            answer.resize(std::size_t(size));
            return answer;
        }
        if (errno != ERANGE) // the value has grown in between
            return {};
    }
}

std::optional<ExtendedAttributes> extendedAttributes(int file) {
    const auto names =
        answerOf([&](char *room, std::size_t size) { return ::flistxattr(file, room, size); });
    if (!names)
        return errno == EOPNOTSUPP ? std::optional(ExtendedAttributes()) : std::nullopt;
    ExtendedAttributes attributes;
    for (std::size_t at = 0; at < names->size(); at = names->find('\0', at) + 1) {
        const std::string name = names->c_str() + at;
        auto value = answerOf([&](char *room, std::size_t size) {
            return ::fgetxattr(file, name.c_str(), room, size);
        });
        if (!value)
            return {};
        attributes.emplace(name, std::move(*value));
    }
    return attributes;
}

// Removal comes first: a new file may have inherited the folder's access control list.
bool copyExtendedAttributes(int from, int to) {
    const auto wanted = extendedAttributes(from);
    const auto present = extendedAttributes(to);
    if (!wanted || !present)
        return false;
    for (const auto &[name, value] : *present) {
        if (wanted->count(name) == 0 && ::fremovexattr(to, name.c_str()) != 0)
            return false;
    }
    for (const auto &[name, value] : *wanted) {
        const auto found = present->find(name);
        const bool isSame = found != present->end() && found->second == value;
        if (!isSame && ::fsetxattr(to, name.c_str(), value.data(), value.size(), 0) != 0)
            return false;
    }
    return true;
}

} // namespace

bool copyAttributes(int from, int to) {
    struct stat wanted = {};
    struct stat present = {};
    if (::fstat(from, &wanted) != 0 || ::fstat(to, &present) != 0)
        return false;
    const bool isOthers = wanted.st_uid != present.st_uid || wanted.st_gid != present.st_gid;
    if (isOthers && ::fchown(to, wanted.st_uid, wanted.st_gid) != 0)
        return false;
    if (!copyExtendedAttributes(from, to) || ::fchmod(to, wanted.st_mode & 07777) != 0)
        return false;
    // The system may drop the set-group-ID bit without an error.
    return ::fstat(to, &present) == 0 && present.st_mode == wanted.st_mode;
}

} // namespace Tano
