#pragma once

#include <tano/manifest_reader.h>

#include <QFile>
#include <QString>

#include <string>
#include <unistd.h>

namespace ZelPackage {

/// The result of a command and the program's exit status; the greatest one wins.
enum ExitStatus { Fine = 0, Findings = 1, Failure = 2 };

/// How a text is highlighted on a terminal.
enum class Style { Plain, Heading, Faint, Good, Caution, Bad };

/// Standard output for results, and standard error for summaries and errors. Both are written in
/// UTF-8, whatever the locale.
class Console {
public:
    enum class Color { Auto, Always, Never };

    /// With STDERR_FILENO, results go to standard error as well.
    explicit Console(int results = STDOUT_FILENO);

    /// Overrides whether styled() has an effect; by default, that depends on terminal and
    /// environment.
    void setColor(Color color);
    /// Whether results go to a terminal.
    bool isTerminal() const { return m_isTerminal; }

    /// Writes to standard output, restoring the bytes escaped by nativeText(). finish() reports
    /// errors.
    void print(const QString &text);
    /// Writes UTF-8 content; on a terminal, escapes control characters except tabs and line feeds.
    void printBytes(const std::string &bytes);

    /// A file name, or part of a file, for standard output: made printable on a terminal, except
    /// for the characters in `kept`; unchanged elsewhere, for programs that read it.
    QString shown(const QString &text, const QString &kept = {}) const;

    // Write to standard error as "zel-package: FILE:LINE:COLUMN: message", with control characters
    // escaped.

    void printMessage(const QString &message);
    void printMessage(const QString &file, const QString &message);
    void printMessage(const QString &file, Tano::SourcePosition position, const QString &message);

    /// Shows the progress in a line on the terminal, which the next output replaces; an empty text
    /// removes it. Does nothing unless standard error is a terminal.
    void showProgress(const QString &text);

    /// Flushes the output. If not everything could be written, reports the reason and returns
    /// false.
    [[nodiscard]] bool finish();

    /// The width of standard output in columns, at least 40: from COLUMNS, else of the terminal,
    /// else 80.
    int width() const;
    /// Like width() for tables, which other programs read line by line: unlimited without COLUMNS
    /// and terminal.
    int tableWidth() const;

    /// Applies a style; returns the text unchanged unless standard output is a terminal, or if
    /// NO_COLOR is set (no-color.org).
    QString styled(const QString &text, Style style) const;

private:
    void write(const std::string &bytes);
    void flush();
    void removeProgress();

    QFile m_output;
    QFile m_messages;
    QString m_writeError;
    int m_width; // 0 if unknown
    bool m_isTerminal;
    bool m_isColored;
    bool m_canShowProgress;
    bool m_showsProgress = false;
};

} // namespace ZelPackage
