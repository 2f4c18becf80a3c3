#include "language_chooser.h"

#include "widgets/hint_label.h"

#include <packagemodel/language_name.h>

#include <zel/language.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace Editor {
namespace {

enum Column { Name, NativeName, Code };

QList<QStandardItem *> rowOf(const QString &name, const QString &nativeName, const QString &code) {
    QList<QStandardItem *> row;
    for (const QString &text : {name, nativeName, code}) {
        row.append(new QStandardItem(text));
        row.last()->setEditable(false);
    }
    return row;
}

// A language, optionally with subtags after underscores or hyphens: "pt_BR".
bool isCode(const QString &text) {
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("[A-Za-z]{2,8}([_-][A-Za-z0-9]{1,8})*")));
    return form.match(text).hasMatch();
}

} // namespace

LanguageChooser::LanguageChooser(const QSet<QString> &present, QWidget *parent)
    : QDialog(parent)
    , m_present(present)
    , m_languages(new QStandardItemModel(0, 3, this))
    , m_found(new QSortFilterProxyModel(this))
    , m_search(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_remark(new HintLabel({}, this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(tr("Add Language"));
    m_search->setPlaceholderText(tr("Find a language, or type a code such as pt_BR"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_languages->setHorizontalHeaderLabels({tr("Language"), tr("Its own name"), tr("Code")});
    m_found->setSourceModel(m_languages);
    m_found->setFilterKeyColumn(-1);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_found->setSortLocaleAware(true);
    fill();
    m_found->sort(Name);

    m_view->setModel(m_found);
    m_view->setAccessibleName(tr("Languages"));
    m_view->setRootIsDecorated(false);
    m_view->setAlternatingRowColors(true);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_remark->setWordWrap(true);
    m_remark->setMinimumHeight(2 * m_remark->fontMetrics().lineSpacing());

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_remark);
    layout->addWidget(m_buttons);
    connect(m_search, &QLineEdit::textChanged, this, &LanguageChooser::search);
    connect(m_view, &QTreeView::doubleClicked, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    search({});
    resize(520, 460);
}

void LanguageChooser::fill() {
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages()) {
        if (!m_present.contains(language.isoCode()))
            m_languages->appendRow(rowOf(Zel::PackageModel::languageName(language),
                                         language.nativeName(), language.isoCode()));
    }
}

void LanguageChooser::search(const QString &text) {
    const QString typed = text.trimmed();
    m_found->setFilterFixedString(typed);
    if (m_found->rowCount() == 0 && isCode(typed) && !m_present.contains(typed)) {
        const QString name = tr("Another language");
        const auto others = m_languages->findItems(name);
        for (const QStandardItem *other : others)
            m_languages->removeRow(other->row());
        m_languages->appendRow(rowOf(name, {}, typed));
    }
    m_view->setCurrentIndex(m_found->index(0, Name));
    m_remark->setText(remark());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_found->rowCount() > 0);
}

QString LanguageChooser::remark() const {
    const QString typed = m_search->text().trimmed();
    if (m_found->rowCount() > 0)
        return m_languages->findItems(tr("Another language")).isEmpty() || code() != typed
                   ? QString()
                   : tr("No known language matches. “%1” is added as a code.").arg(typed);
    if (m_present.contains(typed))
        return tr("The package supports “%1” already.").arg(typed);
    return tr("No known language matches, and “%1” is not a code. A code starts with letters; "
              "letters and digits follow an underscore, as in pt_BR.")
        .arg(typed);
}

QString LanguageChooser::code() const {
    return m_view->currentIndex().siblingAtColumn(Code).data().toString();
}

bool LanguageChooser::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(m_view, event);
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace Editor
