#include "kor/widgets/KorTextGuard.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QValidator>

namespace
{
/** Accepts any text but removes NULs; a line edit asks its validator before it signals a change. */
class WithoutNul final : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString& text, int& position) const override
    {
        position -= text.leftRef(position).count(QChar::Null);
        text.remove(QChar::Null);
        return Acceptable;
    }
};

void guard(QTextDocument* document)
{
    QObject::connect(document, &QTextDocument::contentsChanged, document, [document] {
        QTextCursor nul = document->find(QString(QChar::Null));
        while (!nul.isNull()) {
            nul.joinPreviousEditBlock();
            nul.removeSelectedText();
            nul.endEditBlock();
            nul = document->find(QString(QChar::Null));
        }
    });
}
} // namespace

void KorTextGuard::watch()
{
    static QPointer<KorTextGuard> guard;
    if (guard || !qApp)
        return;
    guard = new KorTextGuard(qApp);
    qApp->installEventFilter(guard);
}

bool KorTextGuard::eventFilter(QObject* watched, QEvent* event)
{
    // Once per widget, before it is shown. A box with its own validator does not accept NUL anyway.
    if (event->type() == QEvent::Polish) {
        if (auto* line = qobject_cast<QLineEdit*>(watched)) {
            if (!line->validator())
                line->setValidator(new WithoutNul(line));
        } else if (auto* plain = qobject_cast<QPlainTextEdit*>(watched)) {
            guard(plain->document());
        } else if (auto* note = qobject_cast<QTextEdit*>(watched)) {
            guard(note->document());
        }
    }
    return QObject::eventFilter(watched, event);
}
