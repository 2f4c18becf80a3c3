#include <tano/manifest_reader.h>

#include "manifest_parser.h"
#include "record_data.h"

#include <QFile>

#include <algorithm>
#include <vector>

namespace Tano {
namespace {

constexpr std::size_t chunkSize = std::size_t(64) * 1024;

} // namespace

struct ManifestReader::State {
    Positions positions;
    ManifestFailure failure;
    FieldPositions fields;

    bool finish(ManifestParser &parser, PackageInfo &package) {
        failure = parser.failure();
        fields = parser.takeFieldPositions();
        if (!failure.message.empty())
            return false;
        RecordAccess::assign(package, parser.takePackage());
        return true;
    }
};

ManifestReader::ManifestReader(Positions positions)
    : m_state(std::make_unique<State>(State{positions, {}, {}})) {
}

ManifestReader::~ManifestReader() = default;

bool ManifestReader::readContent(const std::string &content, PackageInfo &package) {
    ManifestParser parser(m_state->positions == Positions::Keep);
    std::size_t start = 0;
    do {
        const std::size_t size = std::min(chunkSize, content.size() - start);
        const bool isLast = start + size == content.size();
        if (!parser.feed(content.data() + start, size, isLast))
            break;
        start += size;
    } while (start < content.size());
    return m_state->finish(parser, package);
}

bool ManifestReader::readFile(QFile &file, PackageInfo &package) {
    const bool opensFile = !file.isOpen();
    if (opensFile && !file.open(QIODevice::ReadOnly)) {
        m_state->failure = {"The file cannot be opened: " + file.errorString().toStdString() + ".",
                            {}};
        return false;
    }

    ManifestParser parser(m_state->positions == Positions::Keep);
    std::vector<char> chunk(chunkSize);
    bool isLast = false;
    while (!isLast) {
        const qint64 size = file.read(chunk.data(), qint64(chunk.size()));
        if (size < 0) {
            m_state->failure = {
                "The file cannot be read: " + file.errorString().toStdString() + ".", {}};
            break;
        }
        isLast = size == 0;
        if (!parser.feed(chunk.data(), std::size_t(size), isLast))
            break;
    }

    const bool complete = isLast || !parser.failure().message.empty();
    const bool succeeded = complete && m_state->finish(parser, package);
    if (opensFile)
        file.close();
    return succeeded;
}

const std::string &ManifestReader::errorMessage() const {
    return m_state->failure.message;
}

SourcePosition ManifestReader::errorPosition() const {
    return m_state->failure.position;
}

std::string ManifestReader::errorString() const {
    return withPosition(m_state->failure.message, m_state->failure.position);
}

SourcePosition ManifestReader::position(const std::string &path) const {
    return m_state->fields.find(path);
}

} // namespace Tano
