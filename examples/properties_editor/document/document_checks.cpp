#include "document.h"

#include "field_edits.h"
#include "problem_report.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>

#include <algorithm>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageModel::Issue;
using Zel::PackageModel::LanguageCoverage;
using Zel::PackageModel::Severity;

const Zel::RobotLanguages &Document::languages() const {
    if (!m_languages)
        m_languages = Zel::PackageModel::languages(m_package.get());
    return *m_languages;
}

LanguageCoverage Document::coverage(const QString &languageCode) const {
    if (!m_coverages)
        m_coverages = Zel::PackageModel::coverages(m_package.get());
    const auto found =
        std::find_if(m_coverages->begin(), m_coverages->end(), [&](const LanguageCoverage &each) {
            return each.language.isoCode() == languageCode;
        });
    return found == m_coverages->end() ? LanguageCoverage() : *found;
}

// Checks the whole package, and its files.
void Document::trackIssues() {
    m_tracker = std::make_unique<Zel::PackageModel::IssueTracker>(m_package.get(),
                                                                  issueOptions(m_fileName));
    indexIssues();
}

bool Document::updateIssues() {
    const bool isChanged = m_tracker->update();
    if (isChanged)
        indexIssues();
    return isChanged;
}

QPair<QDateTime, qint64> Document::iconOnDisk() const {
    const QFileInfo icon(QFileInfo(m_fileName).absoluteDir(), QStringLiteral("icon.png"));
    return icon.isFile() ? qMakePair(icon.lastModified(), icon.size()) : QPair<QDateTime, qint64>();
}

// Returns whether the file has changed. While the manifest is gone, its folder may be too.
bool Document::followIcon() {
    if (!QFileInfo::exists(m_fileName) || iconOnDisk() == m_iconOnDisk)
        return false;
    if (isIconEdited()) {
        m_iconOnDisk = iconOnDisk();
        return true;
    }
    if (const auto present = readAgain())
        m_package->setIcon(present->icon());
    rememberIcon();
    return true;
}

void Document::checkFiles() {
    if (m_fileName.isEmpty())
        return;
    const bool isIconNew = followIcon();
    if (updateIssues() || isIconNew)
        Q_EMIT edited();
}

void Document::indexIssues() {
    m_issueByPath.clear();
    m_entrySeverity.clear();
    const auto keepWorst = [](auto &entry, const auto &candidate, bool isWorse) {
        if (isWorse)
            entry = candidate;
    };
    for (const Issue &issue : issues()) {
        const bool isFirst = !m_issueByPath.contains(issue.path);
        keepWorst(m_issueByPath[issue.path], issue,
                  isFirst || issue.severity > m_issueByPath[issue.path].severity);
        const auto path = FieldPath::parse(Zel::toUtf8(issue.path));
        if (path && !fieldKey(*path).isEmpty()) {
            const auto key = qMakePair(fieldName(*path), fieldKey(*path));
            const bool isNew = !m_entrySeverity.contains(key);
            keepWorst(m_entrySeverity[key], issue.severity,
                      isNew || issue.severity > m_entrySeverity[key]);
        }
    }
    Q_EMIT issuesChanged();
}

std::optional<Issue> Document::issueAt(const FieldPath &path) const {
    if (path.isEmpty())
        return std::nullopt; // the issue of the package concerns no field
    const auto found = m_issueByPath.constFind(Zel::fromUtf8(path.toString()));
    return found == m_issueByPath.cend() ? std::nullopt : std::optional<Issue>(*found);
}

std::optional<Severity> Document::entrySeverity(const QString &list, const QString &key) const {
    const auto found = m_entrySeverity.constFind({list, key});
    return found == m_entrySeverity.cend() ? std::nullopt : std::optional<Severity>(*found);
}

std::optional<Severity> Document::fieldSeverity(const FieldPath &path) const {
    const QString start = Zel::fromUtf8(path.toString());
    std::optional<Severity> worst;
    for (const Issue &issue : issues()) {
        const bool isInside =
            !path.isEmpty() && issue.path.startsWith(start) &&
            (issue.path.size() == start.size() || issue.path[start.size()] == u'[');
        if (isInside && (!worst || *worst < issue.severity))
            worst = issue.severity;
    }
    return worst;
}

} // namespace Editor
