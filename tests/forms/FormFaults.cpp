#include "forms/FormFaults.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <algorithm>

namespace
{
// The least number of characters that a field must show.
constexpr int fewestCharacters = 6;

QString nameOf(const QWidget* widget)
{
    const QString text = widget->property("text").toString();
    return QString("%1 %2%3").arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
                                  text.isEmpty() ? QString() : " \"" + text + '"');
}

QRect placeOf(const QWidget* widget) { return {widget->mapTo(widget->window(), QPoint()), widget->size()}; }

/**
 * Internal parts of Qt's widgets: the line edit of a spin box, the arrows of a tab bar, a grid's corner button and so
 * on.
 */
bool isPart(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget();
    return widget->objectName().startsWith("qt_") || qobject_cast<const QAbstractSpinBox*>(parent) ||
           qobject_cast<const QComboBox*>(parent) || qobject_cast<const QLineEdit*>(parent) ||
           qobject_cast<const QTabBar*>(parent) || widget->inherits("QTableCornerButton") ||
           widget->inherits("QComboBoxPrivateContainer");
}

QList<QWidget*> shownIn(const QWidget* form)
{
    QList<QWidget*> shown;
    const QList<QWidget*> all = form->findChildren<QWidget*>();
    for (QWidget* widget : all) {
        if (widget->isVisible() && widget->window() == form->window() && !isPart(widget))
            shown.append(widget);
    }
    return shown;
}

/** Whether Tab stops here; a grid or a group of radio buttons is one stop. */
bool isStop(const QWidget* widget)
{
    if (!widget->isEnabled() || widget->focusProxy() || !(widget->focusPolicy() & Qt::TabFocus))
        return false;
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    return !radio || !radio->autoExclusive() || radio->isChecked();
}

bool isField(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QTextEdit*>(widget);
}

bool isHigher(const QWidget* one, const QWidget* other) { return placeOf(one).top() < placeOf(other).top(); }

/** The tab stops in tab order, starting with the topmost one. */
QList<QWidget*> walk(QWidget* form)
{
    QList<QWidget*> way;
    QWidget* first = form;
    do {
        first = first->nextInFocusChain();
    } while (first != form && !(first->isVisible() && isStop(first) && !isPart(first)));
    first->setFocus(Qt::TabFocusReason);
    QWidget* at = QApplication::focusWidget();
    while (at && !way.contains(at)) {
        way.append(at);
        // Tab moves through day, month and year before it leaves a date.
        for (int press = 0; press < 4 && QApplication::focusWidget() == at; ++press)
            QTest::keyClick(at, Qt::Key_Tab);
        at = QApplication::focusWidget();
    }
    // The tab order is a cycle; start it at the topmost widget.
    std::rotate(way.begin(), std::min_element(way.begin(), way.end(), isHigher), way.end());
    return way;
}

/** True if the step goes back in a row or up in a column. */
bool jumps(const QRect& from, const QRect& to)
{
    const auto share = [](int begin, int end, int length) { return double(end - begin) / length > 0.5; };
    const bool sameRow = share(std::max(from.top(), to.top()), std::min(from.bottom(), to.bottom()),
                               std::min(from.height(), to.height()));
    const bool sameColumn =
        share(std::max(from.left(), to.left()), std::min(from.right(), to.right()), std::min(from.width(), to.width()));
    return (sameRow && to.right() <= from.left()) || (!sameRow && sameColumn && to.bottom() <= from.top());
}

bool isCut(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        if (label->text().isEmpty())
            return false;
        return label->wordWrap()
                   ? label->heightForWidth(label->width()) > label->height()
                   : label->sizeHint().width() > label->width() || label->sizeHint().height() > label->height();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        const QSize words = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 6;
        const int mark = button->isCheckable() ? 24 : 8;
        return !button->text().isEmpty() &&
               (words.width() + icon + mark > button->width() || words.height() > button->height());
    }
    if (qobject_cast<const QGroupBox*>(widget))
        return widget->minimumSizeHint().width() > widget->width();
    if (qobject_cast<const QAbstractSpinBox*>(widget))
        return widget->minimumSizeHint().width() > widget->width() ||
               widget->minimumSizeHint().height() > widget->height();
    if (const auto* edit = qobject_cast<const QLineEdit*>(widget))
        return edit->width() < fewestCharacters * edit->fontMetrics().averageCharWidth() ||
               edit->fontMetrics().horizontalAdvance(edit->placeholderText()) > edit->contentsRect().width() - 12 ||
               edit->minimumSizeHint().height() > edit->height();
    if (const auto* list = qobject_cast<const QListView*>(widget))
        return list->sizeHintForColumn(0) > list->viewport()->width();
    return false;
}

void addCutWords(const QWidget* widget, QStringList* faults)
{
    const auto cut = [&](const QString& word) { faults->append("cut off: " + nameOf(widget) + ", " + word); };
    if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        const int room =
            combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo).width();
        for (int item = 0; item < combo->count(); ++item) {
            if (combo->fontMetrics().horizontalAdvance(combo->itemText(item)) > room)
                cut(combo->itemText(item));
        }
    }
    if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            const QString text = bar->tabText(tab).remove('&');
            if (bar->tabRect(tab).right() > bar->width() ||
                bar->fontMetrics().horizontalAdvance(text) > bar->tabRect(tab).width() - 8)
                cut(text);
        }
    }
    const auto* header = qobject_cast<const QHeaderView*>(widget);
    for (int section = 0; header && header->model() && section < header->count(); ++section) {
        const QString word = header->model()->headerData(section, header->orientation()).toString();
        QStyleOptionHeader option;
        option.initFrom(header);
        option.rect.setWidth(header->sectionSize(section));
        const int room = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header).width();
        if (!header->isSectionHidden(section) && header->fontMetrics().horizontalAdvance(word) > room)
            cut(word);
    }
}

/** True for parents with scrolled or self-drawn content. */
bool laysOutItself(const QWidget* parent)
{
    return qobject_cast<const QAbstractScrollArea*>(parent) ||
           qobject_cast<const QAbstractScrollArea*>(parent->parentWidget());
}
} // namespace

QStringList tabFaults(QWidget* form)
{
    QStringList faults;
    const QList<QWidget*> way = walk(form);
    for (int stop = 1; stop < way.size(); ++stop) {
        if (jumps(placeOf(way[stop - 1]), placeOf(way[stop])))
            faults.append("jumps back: " + nameOf(way[stop - 1]) + " -> " + nameOf(way[stop]));
    }
    const QList<QWidget*> shown = shownIn(form);
    for (QWidget* widget : shown) {
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        // Not lost: radio buttons of a group, reached with the arrow keys, and the sidebar, which repeats the menus.
        const bool isLost = button && button->isEnabled() && !button->autoExclusive() &&
                            !button->inherits("QtCategoryButton") && !(button->focusPolicy() & Qt::TabFocus) &&
                            button->shortcut().isEmpty();
        if (isLost || (isStop(widget) && !way.contains(widget)))
            faults.append("out of reach: " + nameOf(widget));
    }
    return faults;
}

QStringList labelFaults(const QWidget* form)
{
    QStringList faults;
    QList<const QWidget*> named;
    const QList<QWidget*> shown = shownIn(form);
    for (const QWidget* widget : shown) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (!label)
            continue;
        if (label->buddy())
            named.append(label->buddy());
        else if (label->text().trimmed().endsWith(':'))
            faults.append("names nothing: " + nameOf(label));
    }
    for (const QWidget* widget : shown) {
        if (isField(widget) && widget->focusPolicy() != Qt::NoFocus && !named.contains(widget) &&
            widget->accessibleName().isEmpty() && widget->property("placeholderText").toString().isEmpty())
            faults.append("has no name: " + nameOf(widget));
    }
    return faults;
}

QStringList roomFaults(const QWidget* form)
{
    QStringList faults;
    const QList<QWidget*> shown = shownIn(form);
    for (const QWidget* widget : shown) {
        if (isCut(widget))
            faults.append(QString("cut off: %1, %2x%3 of %4x%5")
                              .arg(nameOf(widget))
                              .arg(widget->width())
                              .arg(widget->height())
                              .arg(widget->sizeHint().width())
                              .arg(widget->sizeHint().height()));
        addCutWords(widget, &faults);
        const QWidget* parent = widget->parentWidget();
        if (laysOutItself(parent))
            continue;
        if (!parent->rect().contains(widget->geometry()))
            faults.append("sticks out of its parent: " + nameOf(widget));
        for (const QWidget* other : shown) {
            if (other < widget && other->parentWidget() == parent && other->geometry().intersects(widget->geometry()))
                faults.append("on top of each other: " + nameOf(other) + " and " + nameOf(widget));
        }
    }
    return faults;
}
