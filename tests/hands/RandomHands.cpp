#include "hands/RandomHands.h"

#include "hands/Keys.h"
#include "hands/Workplace.h"
#include "kor/widgets/KorTab.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

namespace
{
constexpr int mostEscapes = 500;

/** Codes that exist, codes that do not, and nonsense. */
const QStringList words{"RICE", "TEA",   "t1",   "T2", "M1", "M2",  "S1", "A1",
                        "E1",   "1-100", "FOOD", "KG", "et", "x'y", "%",  "Ann"};
const QStringList figures{"1", "2", "3", "5", "12", "100", "7500", "12,5", "0", "-4", "1000000"};

const QList<int> wanderings{Qt::Key_Tab,  Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Down,      Qt::Key_Up,
                            Qt::Key_Home, Qt::Key_End, Qt::Key_Space,   Qt::Key_Backspace, Qt::Key_PageDown};

const QString rowTap = "[a row]";

// Typical tasks, which are sometimes typed as a whole: pages, texts, and keys in brackets.
const QList<QStringList> errands{
    {"TabMakanDitempat", rowTap, "[F12]", "Ann", "[F3]", "[F12]", "RICE", "[Return]", "2", "[Return]", "[Esc]",
     "[Return]"},
    {"TabMakanDitempat", rowTap, "[F9]", "[F9]", "7500", "[Tab]", "[Return]"},
    {"TabMakanDitempat", rowTap, "[F9]", "M2", "[Return]", "[F9]", "7500", "[Return]"},
    {"TabBawaPulang", "[F12]", "Bob", "[F3]", "[F12]", "TEA", "[Return]", "3", "[Return]", "[Esc]", "[Return]"},
    {"TabBawaPulang", rowTap, "[F9]", "[F9]", "100", "[Tab]", "[Return]"},
    {"TabFastFood", "[F12]", "[F3]", "[F12]", "RICE", "[Return]", "1", "[Return]", "[Esc]", "[F9]", "100", "[Return]"},
    {"TabPurchases", "[F12]", "S1", "[Return]", "[F3]", "[F12]", "RICE", "[Return]", "5", "[Tab]", "12", "[Return]",
     "[Esc]", "[F9]", "12", "[Return]"},
    {"TabPurchaseOrder", "[F12]", "S1", "[Return]", "[F3]", "[F12]", "TEA", "[Return]", "5", "[Return]", "[Esc]",
     "[Return]"},
    {"TabPayment", "[F12]", "S1", "[Return]", "[F3]", "[F2]", "5", "[Return]", "[Return]"},
    {"TabPiutang", "[F12]", "M2", "[Return]", "[F3]", "[F2]", "5", "[Return]", "[Return]"},
    {"TabInventoryAdj", "[F12]", "RICE", "[Return]", "3", "[Tab]", "[Return]"},
    {"TabPesananMasuk", rowTap, "[F9]", "[F8]"},
};

// Mostly without a pause, sometimes as slow as a user.
const QList<int> pauses{0, 0, 0, 0, 0, 1, 5, 20, 40, 120};
} // namespace

RandomHands::RandomHands(MainWindow& window, quint32 seed) : m_window(window), m_chance(seed) {}

KorTab* RandomHands::page() const
{
    return qobject_cast<KorTab*>(m_window.findChild<QTabWidget*>("tabWidget")->currentWidget());
}

void RandomHands::play(int strokes)
{
    QObject here;
    m_left = strokes;
    m_closings = 0;
    scheduleNext(&here);
    while (m_left > 0 || openForm()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Posted events may still open a form.
        QCoreApplication::processEvents();
    }
}

void RandomHands::scheduleNext(QObject* context)
{
    // From a timer, since most inputs go to forms that run their own event loop.
    QTimer::singleShot(oneOf(pauses), context, [this, context] {
        scheduleNext(context);
        if (m_left-- > 0)
            act();
        else if (openForm())
            giveUp();
    });
}

void RandomHands::giveUp()
{
    if (++m_closings > mostEscapes)
        qFatal("%s can not be closed", openForm()->metaObject()->className());
    strikeKey(Qt::Key_Escape);
}

void RandomHands::write(const QString& what)
{
    if (!m_log)
        return;
    const QWidget* form = openForm();
    const QWidget* focus = QApplication::focusWidget();
    if (const auto* box = qobject_cast<const QMessageBox*>(form); box && box->text() != m_told)
        *m_log << "    " << box->text().simplified() << Qt::endl;
    m_told = qobject_cast<const QMessageBox*>(form) ? static_cast<const QMessageBox*>(form)->text() : QString();
    *m_log << (page() ? page()->metaObject()->className() : "-") << ' '
           << (form ? form->metaObject()->className() : "-") << ' ' << (focus ? focus->objectName() : "-") << ": "
           << what << Qt::endl;
}

void RandomHands::act()
{
    QWidget* form = openForm();
    QWidget* place = form ? form : page();
    // There is no window manager that would do it.
    if (!QApplication::activePopupWidget())
        QApplication::setActiveWindow(form ? form : &m_window);
    const int chance = below(100);
    if (!m_errand.isEmpty() && below(20) > 0)
        goOnWithTheErrand();
    else if (!form && chance < 8)
        startAnErrand();
    else if (!place || (!form && chance < 12))
        openSomePage();
    else if (chance < 13 && !m_events.isEmpty() && below(4) == 0) {
        const Event event = oneOf(m_events);
        write(event.name);
        event.happen();
    } else if (chance < 40)
        strikeSomething(place);
    else if (chance < 65)
        typeSomething();
    else if (chance < 75)
        tapSomething(place);
    else if (chance < 83) {
        const int key = oneOf(wanderings);
        write(QKeySequence(key).toString());
        strikeKey(key, key == Qt::Key_Space ? QString(" ") : QString());
    } else {
        write("Return");
        strikeKey(Qt::Key_Return);
    }
}

void RandomHands::openSomePage()
{
    const QString name = oneOf(Workplace::pageNames());
    write("open " + name);
    m_window.openTab(name);
}

void RandomHands::startAnErrand()
{
    m_errand = oneOf(errands);
    write("errand to " + m_errand.first());
    m_window.openTab(m_errand.takeFirst());
}

void RandomHands::goOnWithTheErrand()
{
    const QString what = m_errand.takeFirst();
    write("errand: " + what);
    if (what == rowTap) {
        if (const QTableView* grid = page() && !openForm() ? gridInFront(*page()) : nullptr)
            tap(grid);
    } else if (what.startsWith('['))
        strikeKey(QKeySequence::fromString(what.mid(1, what.size() - 2))[0]);
    else
        type(what);
}

void RandomHands::strikeSomething(QWidget* place)
{
    const Stroke stroke = oneOf(strokesOf(*place));
    // Skip most Escape keys; otherwise everything would be closed at once.
    if (stroke.key == Qt::Key_Escape && below(5) > 0)
        return;
    write(stroke.name);
    strike(place, stroke);
}

void RandomHands::typeSomething()
{
    // Mostly valid input, otherwise nothing would ever be sold.
    static const QRegularExpression ofFigures("Qty|Jumlah|Paid|Price|Harga|Amount|Perc|Disc|Tax|Due|Credit");
    const QWidget* focus = QApplication::focusWidget();
    const bool takesFigures = focus && ofFigures.match(focus->objectName()).hasMatch();
    const QString word = oneOf(takesFigures == (below(6) > 0) ? figures : words);
    write("type " + word);
    type(word);
}

void RandomHands::type(const QString& word)
{
    for (const QChar letter : word)
        strikeKey(letter.toUpper().unicode(), letter);
}

void RandomHands::tapSomething(QWidget* place)
{
    QWidgetList targets;
    const QWidgetList parts = place->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        const bool taken = qobject_cast<QAbstractButton*>(part) || qobject_cast<QComboBox*>(part) ||
                           qobject_cast<QLineEdit*>(part) || qobject_cast<QTableView*>(part);
        if (taken && part->isVisible() && part->isEnabled())
            targets.append(part);
    }
    if (targets.isEmpty())
        return;
    const QWidget* target = oneOf(targets);
    write("tap " + target->objectName());
    tap(target);
}

void RandomHands::tap(const QWidget* target)
{
    const auto* grid = qobject_cast<const QTableView*>(target);
    QPoint where = target->rect().center();
    if (const int rows = grid && grid->model() ? grid->model()->rowCount() : 0; rows > 0)
        where = grid->visualRect(grid->model()->index(below(std::min(rows, 8)), 1)).center();
    QTest::mouseClick(grid ? grid->viewport() : const_cast<QWidget*>(target), Qt::LeftButton, {}, where);
}
