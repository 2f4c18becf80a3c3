#include "console.h"

#include "arguments/native_text.h"
#include "text_layout.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <sys/ioctl.h>
#include <unistd.h>

namespace ZelPackage {
namespace {

constexpr int defaultWidth = 80;
constexpr int smallestWidth = 40;

// The terminal's width, 0 if unknown.
int outputWidth(int stream) {
    bool isNumber = false;
    const int columns = qEnvironmentVariableIntValue("COLUMNS", &isNumber);
    if (isNumber && columns > 0)
        return std::max(smallestWidth, columns);
    winsize size{};
    if (!isatty(stream) || ioctl(stream, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return 0;
    return std::max(smallestWidth, int(size.ws_col));
}

// Whether the terminal supports escape sequences.
bool isCapableTerminal(int stream) {
    return isatty(stream) && qgetenv("TERM") != "dumb";
}

const char *sequenceOf(Style style) {
    switch (style) {
    case Style::Plain:
        return "";
    case Style::Heading:
        return "\x1b[1m";
    case Style::Faint:
        return "\x1b[2m";
    case Style::Good:
        return "\x1b[32m";
    case Style::Caution:
        return "\x1b[33m";
    case Style::Bad:
        return "\x1b[31m";
    }
    return "";
}

} // namespace

Console::Console(int results)
    : m_width(outputWidth(results))
    , m_isTerminal(isatty(results))
    , m_isColored(isCapableTerminal(results) && qEnvironmentVariableIsEmpty("NO_COLOR"))
    , m_canShowProgress(isCapableTerminal(STDERR_FILENO)) {
    if (!m_output.open(results, QIODevice::WriteOnly))
        m_writeError = m_output.errorString();
    // If standard error cannot be opened, there is no way to report that.
    static_cast<void>(m_messages.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered));
}

void Console::setColor(Color color) {
    if (color != Color::Auto)
        m_isColored = color == Color::Always;
}

void Console::print(const QString &text) {
    write(nativeBytes(text));
}

void Console::printBytes(const std::string &bytes) {
    write(m_isTerminal ? shown(QString::fromStdString(bytes), QStringLiteral("\t\n")).toStdString()
                       : bytes);
}

QString Console::shown(const QString &text, const QString &kept) const {
    return m_isTerminal ? printableExcept(kept, text) : text;
}

void Console::write(const std::string &bytes) {
    removeProgress();
    const auto size = qint64(bytes.size());
    // A short write gives no reason; the next one fails with it.
    for (qint64 done = 0; done < size && m_writeError.isEmpty();) {
        const qint64 written = m_output.write(bytes.data() + done, size - done);
        if (written <= 0)
            m_writeError = m_output.errorString();
        done += written;
    }
}

void Console::printMessage(const QString &message) {
    // Keeps the order of results and messages if both streams have the same target.
    removeProgress();
    flush();
    m_messages.write((QStringLiteral("zel-package: ") % printable(message) % u'\n').toUtf8());
}

void Console::printMessage(const QString &file, const QString &message) {
    printMessage(file % QStringLiteral(": ") % message);
}

void Console::printMessage(const QString &file, Tano::SourcePosition position,
                           const QString &message) {
    if (position.line == 0)
        printMessage(file, message);
    else
        printMessage(file % u':' % QString::number(position.line) % u':' %
                         QString::number(position.column),
                     message);
}

void Console::showProgress(const QString &text) {
    if (text.isEmpty())
        removeProgress();
    if (text.isEmpty() || !m_canShowProgress)
        return;
    flush();
    m_messages.write((u'\r' % printable(text) % QLatin1String("\x1b[K")).toUtf8());
    m_showsProgress = true;
}

void Console::removeProgress() {
    if (m_showsProgress)
        m_messages.write("\r\x1b[K");
    m_showsProgress = false;
}

void Console::flush() {
    if (m_writeError.isEmpty() && !m_output.flush())
        m_writeError = m_output.errorString();
}

bool Console::finish() {
    flush();
    if (m_writeError.isEmpty())
        return true;
    printMessage(QCoreApplication::translate("zel-package", "Cannot write to standard output: %1.")
                     .arg(m_writeError));
    return false;
}

int Console::width() const {
    return m_width > 0 ? m_width : defaultWidth;
}

int Console::tableWidth() const {
    return m_width > 0 ? m_width : std::numeric_limits<int>::max();
}

QString Console::styled(const QString &text, Style style) const {
    if (!m_isColored || style == Style::Plain || text.isEmpty())
        return text;
    return QLatin1String(sequenceOf(style)) % text % QLatin1String("\x1b[0m");
}

} // namespace ZelPackage
