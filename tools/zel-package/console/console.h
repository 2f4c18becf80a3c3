#pragma once

#include <tano/manifest_reader.h>

#include <QFile>
#include <QString>

#include <string>
#include <unistd.h>

namespace ZelPackage {

/// How a command ends, as the program's exit status; of several, the greatest counts.
enum ExitStatus { Fine = 0, Findings = 1, Failure = 2 };

/// How a text stands out on a terminal.
enum class Style { Plain, Heading, Faint, Good, Caution, Bad };

/// Standard output, which takes the results, and standard error, which takes summaries and
/// troubles. Both are written in UTF-8, whatever the locale.
class Console {
public:
    enum class Color { Auto, Always, Never };

    /// With STDERR_FILENO, results go to standard error too.
    explicit Console(int results = STDOUT_FILENO);

    /// Whether styled() has an effect; by default, as the terminal and the environment have it.
    void setColor(Color color);
    /// Whether results go to a terminal.
    bool isTerminal() const { return m_isTerminal; }

    /// Writes to standard output, the bytes of nativeText() as they were. A failure shows in
    /// finish().
    void print(const QString &text);
    /// Writes content in UTF-8; on a terminal it is printable, apart from tabs and line feeds.
    void printBytes(const std::string &bytes);

    /// A file name or a part of a file as standard output gets it: printable on a terminal, apart
    /// from the characters in `kept`; unchanged elsewhere, for programs that read it.
    QString shown(const QString &text, const QString &kept = {}) const;

    // To standard error, as "zel-package: FILE:LINE:COLUMN: message". Control characters are
    // escaped.

    void printMessage(const QString &message);
    void printMessage(const QString &file, const QString &message);
    void printMessage(const QString &file, Tano::SourcePosition position, const QString &message);

    /// Shows how far the work has got, in a line on the terminal that gives way to whatever is
    /// written next; an empty text removes it. Does nothing where standard error is no terminal.
    void showProgress(const QString &text);

    /// Writes out what is held back. Returns false, once it has told why, when not everything that
    /// was printed has been written.
    [[nodiscard]] bool finish();

    /// The columns of standard output, at least 40: those of the variable COLUMNS or else of the
    /// terminal; 80 where there is neither.
    int width() const;
    /// The same for tables, which other programs read line by line: unlimited where there is
    /// neither.
    int tableWidth() const;

    /// The text as it looks in a style; itself where standard output is no terminal, and
    /// where the environment sets NO_COLOR (no-color.org).
    QString styled(const QString &text, Style style) const;

private:
    void write(const std::string &bytes);
    void flush();
    void removeProgress();

    QFile m_output;
    QFile m_messages;
    QString m_writeError;
    int m_width; // 0 for an unknown one
    bool m_isTerminal;
    bool m_isColored;
    bool m_canShowProgress;
    bool m_showsProgress = false;
};

} // namespace ZelPackage
