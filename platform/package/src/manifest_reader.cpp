#include <tano/manifest_reader.h>

#include "manifest_parser.h"
#include "record_data.h"

#include <tano/input_file.h>

#include <QFile>

#include <algorithm>
#include <memory>

namespace Tano {
namespace {

constexpr std::size_t streamPiece = std::size_t(64) << 10;
// Programs that keep positions also keep the record, so memory matters more to them than the last
// sixth of the time.
constexpr std::size_t savingPiece = std::size_t(1) << 20;
constexpr std::size_t smallPiece = std::size_t(8) << 10;
// From this size on, memory matters more than the time to get pages from the system again at the
// next load.
constexpr qint64 releasedFrom = qint64(8) << 20;

// Sources of a manifest's bytes. read() returns the number of bytes read: fewer than requested at
// the end, negative on errors.

class ContentSource {
public:
    explicit ContentSource(const std::string &content)
        : m_content(content) {}

    static bool isSequential() { return false; }
    qint64 left() const { return qint64(m_content.size() - m_done); }
    qint64 read(char *room, std::size_t size) {
        const std::size_t copied = m_content.copy(room, size, m_done);
        m_done += copied;
        return qint64(copied);
    }
    bool rewind() {
        m_done = 0;
        return true;
    }
    static std::string error() { return {}; }

private:
    const std::string &m_content;
    std::size_t m_done = 0;
};

std::string cannot(const char *what, const QFile &file, const std::string &reason) {
    const std::string name = file.fileName().toStdString();
    return (name.empty() ? "The file" : "The file \"" + name + '"') + " cannot be " + what + ": " +
           reason + '.';
}

class FileSource {
public:
    explicit FileSource(QFile &file)
        : m_file(file)
        , m_input(file, ManifestReader::maxFileSize) {}

    bool isSequential() const { return m_input.isSequential(); }
    qint64 left() const { return m_input.left(); }
    qint64 read(char *room, std::size_t size) { return m_input.read(room, size); }
    bool rewind() { return m_input.rewind(); }
    std::string error() const { return cannot("read", m_file, m_input.error()); }

private:
    QFile &m_file;
    InputFile m_input;
};

// How many bytes to request from a source: one more than the remaining ones if the size is known,
// so that the short count marks the end. A short manifest takes little time, but expat's buffer
// needs twice its size, so it is read in pieces.
template<typename Source>
std::size_t pieceOf(const Source &source, std::size_t maxPiece) {
    if (source.isSequential())
        return streamPiece;
    const qint64 left = std::max(source.left(), qint64(0));
    const std::size_t longest = left < qint64(streamPiece) ? smallPiece : maxPiece;
    return std::min(std::size_t(left) + 1, longest);
}

// Feeds a parser until the end or a failure, which is returned.
template<typename Source>
ManifestFailure feedAll(ManifestParser &parser, Source &source, std::size_t maxPiece) {
    bool isLast = false;
    while (!isLast) {
        const std::size_t wanted = pieceOf(source, maxPiece);
        char *room = parser.room(wanted);
        if (!room)
            break;
        const qint64 size = source.read(room, wanted);
        if (size < 0)
            return {source.error(), {}};
        isLast = source.isSequential() ? size == 0 : std::size_t(size) < wanted;
        if (!parser.feed(std::size_t(size), isLast))
            break;
    }
    return parser.failure();
}

} // namespace

struct TANO_PACKAGE_NO_EXPORT ManifestReader::State {
    Positions positions;
    ManifestFailure failure;
    FieldPositions fields;

    template<typename Source>
    bool read(Source source, PackageInfo &package) {
        const bool keepPositions = positions == Positions::Keep;
        const bool isLong = !source.isSequential() && source.left() > qint64(hopelessLag);
        auto parser = std::make_unique<ManifestParser>(keepPositions);
        if (isLong && !keepPositions && source.left() >= releasedFrom)
            parser->releaseParsedBytes();
        failure = feedAll(*parser, source, keepPositions ? savingPiece : ManifestParser::maxPiece);
        // Read in small pieces, an unterminated tag is reported as such, and not for its contents.
        // Released bytes are there again.
        if (!failure.message.empty() && isLong && source.rewind()) {
            parser = std::make_unique<ManifestParser>(keepPositions);
            failure = feedAll(*parser, source, streamPiece);
        }
        fields = parser->takeFieldPositions();
        if (!failure.message.empty())
            return false;
        RecordAccess::assign(package, parser->takePackage());
        return true;
    }
};

ManifestReader::ManifestReader(Positions positions)
    : m_state(std::make_unique<State>(State{positions, {}, {}})) {
}

ManifestReader::~ManifestReader() = default;

bool ManifestReader::readContent(const std::string &content, PackageInfo &package) {
    return m_state->read(ContentSource(content), package);
}

bool ManifestReader::readFile(QFile &file, PackageInfo &package) {
    const bool opensFile = !file.isOpen();
    if (opensFile) {
        if (const std::string reason = openInput(file); !reason.empty()) {
            m_state->failure = {cannot("opened", file, reason), {}};
            return false;
        }
    }
    const bool succeeded = m_state->read(FileSource(file), package);
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

SourcePosition ManifestReader::position(const FieldPath &path) const {
    return m_state->fields.find(path);
}

SourcePosition ManifestReader::position(const std::string &path) const {
    return position(FieldPath::parse(path).value_or(FieldPath()));
}

std::vector<UnknownNode> ManifestReader::unknownNodes() const {
    return m_state->fields.unknownNodes();
}

} // namespace Tano
