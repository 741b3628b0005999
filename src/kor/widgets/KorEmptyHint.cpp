#include "kor/widgets/KorEmptyHint.h"

#include <QAbstractItemView>
#include <QEvent>

KorEmptyHint::KorEmptyHint(QAbstractItemView* view) : QLabel(view->viewport()), m_view(view)
{
    setText(tr("Nothing to show here."));
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setStyleSheet("color: #6b7680; background: transparent;");
    view->viewport()->installEventFilter(this);
}

void KorEmptyHint::attach(QAbstractItemView* view)
{
    auto* hint = view->viewport()->findChild<KorEmptyHint*>(QString(), Qt::FindDirectChildrenOnly);
    if (!hint)
        hint = new KorEmptyHint(view);
    hint->follow();
}

void KorEmptyHint::follow()
{
    if (const QAbstractItemModel* model = m_view->model()) {
        connect(model, &QAbstractItemModel::rowsInserted, this, &KorEmptyHint::update);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &KorEmptyHint::update);
        connect(model, &QAbstractItemModel::modelReset, this, &KorEmptyHint::update);
    }
    update();
}

void KorEmptyHint::update()
{
    const QAbstractItemModel* model = m_view->model();
    setGeometry(m_view->viewport()->rect());
    setVisible(!model || model->rowCount() == 0);
}

bool KorEmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_view->viewport()->rect());
    return QLabel::eventFilter(watched, event);
}
