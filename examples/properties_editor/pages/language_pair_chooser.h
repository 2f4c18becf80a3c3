#pragma once

#include "models/text_groups.h"

#include <QStringList>
#include <QWidget>

class QComboBox;

namespace Editor {

/// Chooses the languages to translate from and into, which must differ.
class LanguagePairChooser : public QWidget {
    Q_OBJECT

public:
    explicit LanguagePairChooser(QWidget *parent = nullptr);

    /// Offers languages by code. Keeps the last choice if possible; the default source is the
    /// default language.
    void offer(const QStringList &codes);
    /// The target is empty if there is only one language.
    LanguagePair languages() const;

Q_SIGNALS:
    void chosen();

private:
    QComboBox *newChooser(const QString &title, const QString &accessibleName);
    void chooseSource();
    void chooseTarget();
    void fillTargets();

    QComboBox *m_source;
    QComboBox *m_target;
    QStringList m_codes;
    QString m_lastSource;
    QString m_lastTarget;
};

} // namespace Editor
