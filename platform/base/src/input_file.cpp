#include <tano/input_file.h>

#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace Tano {
namespace {

std::string whyNotInput(int descriptor) {
    struct stat status = {};
    if (descriptor < 0 || ::fstat(descriptor, &status) != 0)
        return {}; // not on disk, for example a Qt resource
    if (S_ISDIR(status.st_mode))
        return std::generic_category().message(EISDIR);
    if (S_ISBLK(status.st_mode) || (S_ISCHR(status.st_mode) && ::isatty(descriptor) == 0))
        return "it is a device";
    return {};
}

} // namespace

std::string openInput(QFile &file) {
    if (QFileInfo(file).isDir())
        return std::generic_category().message(EISDIR);
    const bool isOpen = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    return isOpen ? std::string() : file.errorString().toStdString();
}

InputFile::InputFile(QFile &file, std::int64_t maxSize)
    : m_file(file)
    , m_maxSize(maxSize)
    , m_start(file.pos())
    , m_error(whyNotInput(file.handle())) {
    if (m_error.empty() && !isSequential() && left() > m_maxSize)
        m_error = tooLarge();
}

std::int64_t InputFile::read(char *room, std::size_t size) {
    if (!m_error.empty())
        return -1;
    const std::int64_t count = m_file.read(room, qint64(size));
    if (count < 0)
        m_error = m_file.errorString().toStdString();
    else if ((m_done += count) > m_maxSize)
        m_error = tooLarge();
    return m_error.empty() ? count : -1;
}

bool InputFile::rewind() {
    m_done = 0;
    return m_file.seek(m_start);
}

bool InputFile::isSequential() const {
    return m_file.isSequential();
}

std::int64_t InputFile::left() const {
    return m_file.size() - m_file.pos();
}

std::string InputFile::tooLarge() const {
    return "it is larger than " + QLocale::c().formattedDataSize(m_maxSize, 0).toStdString();
}

} // namespace Tano
