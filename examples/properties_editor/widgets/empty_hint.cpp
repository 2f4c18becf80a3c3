#include "empty_hint.h"

#include "hint_label.h"

#include <QAbstractItemView>
#include <QEvent>

namespace Editor {
namespace {

class EmptyHint : public HintLabel {
public:
    EmptyHint(QAbstractItemView *view, const QString &text)
        : HintLabel(text, view->viewport())
        , m_view(view) {
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setMargin(8);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        view->viewport()->installEventFilter(this);
        const QAbstractItemModel *model = view->model();
        const auto refresh = [this] { setVisible(m_view->model()->rowCount() == 0); };
        connect(model, &QAbstractItemModel::rowsInserted, this, refresh);
        connect(model, &QAbstractItemModel::rowsRemoved, this, refresh);
        connect(model, &QAbstractItemModel::modelReset, this, refresh);
        refresh();
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Resize)
            setGeometry(m_view->viewport()->rect());
        return HintLabel::eventFilter(watched, event);
    }

private:
    QAbstractItemView *m_view;
};

} // namespace

QLabel *explainWhenEmpty(QAbstractItemView *view, const QString &text) {
    return new EmptyHint(view, text);
}

} // namespace Editor
