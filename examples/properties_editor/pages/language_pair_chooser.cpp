#include "language_pair_chooser.h"

#include <packagemodel/language_name.h>

#include <zel/language.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace Editor {
namespace {

void fill(QComboBox *chooser, const QStringList &codes, const QString &current) {
    const QSignalBlocker blocker(chooser);
    chooser->clear();
    for (const QString &code : codes)
        chooser->addItem(Zel::PackageModel::languageName(Zel::Language::languageInUse(code)), code);
    chooser->setCurrentIndex(std::max(0, chooser->findData(current)));
}

} // namespace

LanguagePairChooser::LanguagePairChooser(QWidget *parent)
    : QWidget(parent) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_source = newChooser(tr("&Source:"), tr("Source language"));
    m_target = newChooser(tr("&Target:"), tr("Target language"));
    connect(m_source, qOverload<int>(&QComboBox::activated), this,
            &LanguagePairChooser::chooseSource);
    connect(m_target, qOverload<int>(&QComboBox::activated), this,
            &LanguagePairChooser::chooseTarget);
}

QComboBox *LanguagePairChooser::newChooser(const QString &title, const QString &accessibleName) {
    auto *chooser = new QComboBox(this);
    chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser->setAccessibleName(accessibleName);
    constexpr int characters = 8;
    chooser->setMinimumContentsLength(characters);
    auto *label = new QLabel(title, this);
    label->setBuddy(chooser);
    layout()->addWidget(label);
    static_cast<QHBoxLayout *>(layout())->addWidget(chooser, 1);
    return chooser;
}

LanguagePair LanguagePairChooser::languages() const {
    return {m_target->currentData().toString(), m_source->currentData().toString()};
}

void LanguagePairChooser::offer(const QStringList &codes) {
    if (codes == m_codes)
        return;
    m_codes = codes;
    fill(m_source, codes,
         codes.contains(m_lastSource) ? m_lastSource : Zel::Language::defaultLanguage().isoCode());
    fillTargets();
}

void LanguagePairChooser::fillTargets() {
    QStringList codes = m_codes;
    codes.removeAll(languages().sourceLanguage);
    fill(m_target, codes, m_lastTarget);
    m_lastSource = languages().sourceLanguage;
}

void LanguagePairChooser::chooseSource() {
    const LanguagePair chosen = languages();
    if (chosen.sourceLanguage == chosen.language)
        m_lastTarget = m_lastSource; // swap them
    fillTargets();
    chooseTarget();
}

void LanguagePairChooser::chooseTarget() {
    m_lastTarget = languages().language;
    Q_EMIT this->chosen();
}

} // namespace Editor
