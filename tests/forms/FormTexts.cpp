#include "forms/FormTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTabBar>
#include <QTextBrowser>
#include <QWebFrame>
#include <QWebView>

namespace
{
/** The form's own widgets, without internal parts of Qt that have no text (scroll bars and so on). */
QList<QWidget*> widgetsOf(QWidget* form)
{
    QList<QWidget*> widgets = form->findChildren<QWidget*>();
    widgets.prepend(form);
    return widgets;
}

QStringList ownTexts(QWidget* widget)
{
    QStringList texts{widget->toolTip(), widget->windowTitle(), widget->property("placeholderText").toString()};
    if (const auto* label = qobject_cast<QLabel*>(widget)) {
        texts += label->text();
    } else if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
        texts += button->text();
    } else if (const auto* group = qobject_cast<QGroupBox*>(widget)) {
        texts += group->title();
    } else if (const auto* menu = qobject_cast<QMenu*>(widget)) {
        texts += menu->title();
    } else if (const auto* browser = qobject_cast<QTextBrowser*>(widget)) {
        texts += browser->toPlainText();
    } else if (const auto* web = qobject_cast<QWebView*>(widget)) {
        texts += web->page()->mainFrame()->toPlainText().split('\n');
    } else if (const auto* tabs = qobject_cast<QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts += tabs->tabText(i);
    } else if (const auto* header = qobject_cast<QHeaderView*>(widget)) {
        for (int i = 0; header->model() && header->orientation() == Qt::Horizontal && i < header->count(); ++i)
            texts += header->model()->headerData(i, Qt::Horizontal).toString();
    }
    return texts;
}

/** The key as text; empty if there is none. */
QString key(const QKeySequence& sequence, const QString& what)
{
    return sequence.count() == 1 && (sequence[0] & Qt::AltModifier) ? sequence.toString() + ": " + what : QString();
}

QString ownKey(QWidget* widget)
{
    if (const auto* label = qobject_cast<QLabel*>(widget))
        return label->buddy() ? key(QKeySequence::mnemonic(label->text()), label->text()) : QString();
    if (const auto* button = qobject_cast<QAbstractButton*>(widget))
        return key(button->shortcut(), button->text());
    if (const auto* group = qobject_cast<QGroupBox*>(widget))
        return key(QKeySequence::mnemonic(group->title()), group->title());
    return {};
}
} // namespace

QStringList formTexts(QWidget* form)
{
    QStringList texts;
    const QList<QWidget*> widgets = widgetsOf(form);
    for (QWidget* widget : widgets)
        texts += ownTexts(widget);
    const QList<QAction*> actions = form->findChildren<QAction*>();
    for (const QAction* action : actions)
        texts += action->text();
    texts.removeAll(QString());
    texts.sort();
    return texts;
}

QStringList listTexts(QWidget* form)
{
    QStringList texts;
    const auto read = [&texts](const QAbstractItemModel* model) {
        for (int row = 0; model && row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column)
                texts += model->index(row, column).data().toString();
        }
    };
    const QList<QWidget*> widgets = widgetsOf(form);
    for (QWidget* widget : widgets) {
        if (const auto* box = qobject_cast<QComboBox*>(widget))
            read(box->model());
        else if (const auto* view = qobject_cast<QAbstractItemView*>(widget))
            read(view->model());
    }
    texts.removeAll(QString());
    texts.sort();
    return texts;
}

QStringList formKeys(QWidget* form)
{
    QStringList keys;
    const QList<QWidget*> widgets = widgetsOf(form);
    for (QWidget* widget : widgets) {
        if (!widget->isVisibleTo(form))
            continue;
        keys += ownKey(widget);
        if (const auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                keys += key(QKeySequence::mnemonic(tabs->tabText(i)), tabs->tabText(i));
        }
    }
    const QList<QAction*> actions = form->findChildren<QAction*>();
    for (const QAction* action : actions)
        keys += key(action->shortcut(), action->text());
    const QList<QShortcut*> shortcuts = form->findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts)
        keys += key(shortcut->key(), "a shortcut");
    keys.removeAll(QString());
    keys.sort();
    return keys;
}
