#include "hands/Keys.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QSet>
#include <QShortcut>
#include <QTimer>

namespace
{
constexpr int lookInterval = 1;
constexpr int settling = 2;
constexpr int patience = 5000;
constexpr int mostClosings = 400;

bool isAnyButtonDown(const QWidget& page)
{
    const QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>();
    return std::any_of(buttons.cbegin(), buttons.cend(),
                       [](const QAbstractButton* button) { return button->isDown(); });
}
} // namespace

bool Stroke::opens() const { return key == 0 || key == Qt::Key_F12 || key == Qt::Key_F2 || key == Qt::Key_Delete; }

QTableView* gridInFront(const QWidget& page)
{
    const QList<QTableView*> grids = page.findChildren<QTableView*>();
    for (QTableView* grid : grids) {
        if (grid->isVisible())
            return grid;
    }
    return nullptr;
}

QList<Stroke> strokesOf(const QWidget& page)
{
    QList<Stroke> strokes{{"Enter", Qt::Key_Return}, {"Escape", Qt::Key_Escape}};
    QSet<int> known{Qt::Key_Return, Qt::Key_Escape};
    const auto add = [&](const QKeySequence& keys) {
        // Keys with modifiers are mnemonics and text editing.
        if (keys.count() != 1 || keys[0] < Qt::Key_Escape || keys[0] > Qt::Key_F35 || known.contains(keys[0]))
            return;
        known.insert(keys[0]);
        strokes.append({keys.toString(), keys[0]});
    };
    const QList<QAbstractButton*> buttons = page.findChildren<QAbstractButton*>();
    for (const QAbstractButton* button : buttons) {
        if (button->isVisible() && button->isEnabled())
            add(button->shortcut());
    }
    const QList<QShortcut*> shortcuts = page.findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts)
        add(shortcut->key());
    if (gridInFront(page))
        strokes.append({"double click", 0});
    return strokes;
}

void strikeSoon(int key)
{
    QTimer::singleShot(0, qApp, [key] { strikeKey(key); });
}

void strike(QWidget* page, const Stroke& stroke)
{
    if (stroke.key) {
        strikeKey(stroke.key);
        return;
    }
    const QPointer<QTableView> grid = gridInFront(*page);
    // A click reaches the topmost window.
    const QWidget* form = openForm();
    if (!grid || (form && form != page->window()) || !grid->model() || grid->model()->rowCount() == 0)
        return;
    const int row = std::max(0, grid->currentIndex().row());
    const QPoint place = grid->visualRect(grid->model()->index(row, 1)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, place);
    if (grid)
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, place);
}

void Burst::play(QWidget* page, const Stroke& first, const Stroke& second, int delay)
{
    m_page = page;
    m_closed = 0;
    m_through = false;
    m_faults.clear();
    QObject context;
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &context, [this] { look(); });
    looking.start(lookInterval);
    QTimer::singleShot(delay, &context, [this, &context, second] {
        QTimer::singleShot(settling, &context, [this] { m_through = true; });
        if (m_page)
            strike(m_page, second);
    });
    strike(page, first);
    QElapsedTimer time;
    time.start();
    while (!(m_through && isAtRest()) && !time.hasExpired(patience))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (time.hasExpired(patience))
        m_faults.append("no rest");
}

bool Burst::isAtRest() const
{
    const QWidget* form = openForm();
    return (!form || (m_page && form == m_page->window())) && !(m_page && isAnyButtonDown(*m_page));
}

void Burst::look()
{
    // A form may open another form over itself; two forms over the same window are a fault.
    QSet<const QWidget*> below;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (!window->isVisible() || !window->isModal())
            continue;
        const QWidget* opener = window->parentWidget() ? window->parentWidget()->window() : nullptr;
        if (below.contains(opener))
            m_faults.append(QString("two forms, one is %1").arg(window->metaObject()->className()));
        below.insert(opener);
    }
    if (m_through && !isAtRest())
        closeOne();
}

void Burst::closeOne()
{
    QWidget* form = openForm();
    if (!form || !form->isVisible())
        return;
    if (++m_closed <= mostClosings) {
        // Escape means "No" in a message box that has this button.
        strikeSoon(Qt::Key_Escape);
        return;
    }
    m_faults.append(QString("%1 stays open").arg(form->metaObject()->className()));
    if (auto* dialog = qobject_cast<QDialog*>(form))
        dialog->QDialog::reject();
}
