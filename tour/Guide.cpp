#include "tour/Guide.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSemaphore>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <cstdlib>

namespace
{
constexpr int patience = 15000;
constexpr int glance = 15;

QWidget* frontWindow()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

QWidget* find(const QString& name)
{
    QWidget* window = frontWindow();
    if (!window)
        return nullptr;
    const QList<QWidget*> all = window->findChildren<QWidget*>(name);
    for (QWidget* widget : all) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

/** The offscreen platform has no window manager, so the focus must be returned to the front window. */
void keepFrontActive()
{
    QWidget* front = frontWindow();
    if (front && !QApplication::activePopupWidget() && QApplication::activeWindow() != front)
        front->activateWindow();
}

bool isInFront(const QString& className)
{
    const QWidget* window = frontWindow();
    return window && window->isVisible() && className == window->metaObject()->className();
}

QString shownText(const QWidget* widget)
{
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget))
        return plain->toPlainText();
    return widget ? widget->property("text").toString() : QString();
}

/** The visible windows from bottom to top: the main window, forms in the order of opening, popups. */
QList<QWidget*> visibleWindows()
{
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->size().isEmpty())
            windows.append(window);
    }
    const auto rank = [](const QWidget* window) {
        if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip)
            return 3;
        if (window == QApplication::activeModalWidget())
            return 2;
        return window->isModal() || window->parentWidget() ? 1 : 0;
    };
    std::stable_sort(windows.begin(), windows.end(),
                     [&rank](const QWidget* left, const QWidget* right) { return rank(left) < rank(right); });
    return windows;
}

QString spot(const QRect& area)
{
    return QString("%1x%2+%3+%4").arg(area.width()).arg(area.height()).arg(area.x()).arg(area.y());
}

/**
 * The whole screen as an image: forms are centered on the window behind them. The image's metadata has the area of the
 * page and of the windows above the main window, for cropping.
 */
QImage screen()
{
    constexpr int frame = 2;
    const QList<QWidget*> windows = visibleWindows();
    if (windows.isEmpty())
        return QImage(1, 1, QImage::Format_RGB32);
    const QRect ground = windows.first()->geometry();
    QRect area = ground;
    QRect front;
    QList<QPoint> corners;
    QPoint shift;
    for (const QWidget* window : windows) {
        QRect place = window->geometry();
        if (window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip && window != windows.first()) {
            place.moveCenter(ground.center());
            shift = place.topLeft() - window->geometry().topLeft();
            front = QRect();
        } else if (window != windows.first()) {
            place.translate(shift);
        }
        corners.append(place.topLeft());
        const QRect framed = place.adjusted(-frame, -frame, frame, frame);
        area |= framed;
        if (window != windows.first())
            front |= framed;
    }
    QImage picture(area.size(), QImage::Format_RGB32);
    picture.fill(QColor("#3a4650"));
    QPainter painter(&picture);
    for (int i = 0; i < windows.size(); ++i) {
        const QRect place(corners.at(i) - area.topLeft(), windows.at(i)->size());
        painter.fillRect(place.adjusted(-frame, -frame, frame, frame), QColor("#20262b"));
        painter.drawPixmap(place.topLeft(), windows.at(i)->grab());
    }
    picture.setText("tour-front", spot(front.isNull() ? picture.rect() : front.translated(-area.topLeft())));
    if (const auto* pages = windows.first()->findChild<QTabWidget*>("tabWidget")) {
        const QPoint corner = corners.first() - area.topLeft() + pages->mapTo(windows.first(), QPoint());
        picture.setText("tour-page", spot(QRect(corner, pages->size())));
    }
    return picture;
}
} // namespace

Guide::Guide(const QString& folder)
    : m_folder(folder), m_language(qEnvironmentVariable("ZAVEL_TOUR_LANGUAGE")),
      m_words(qEnvironmentVariable("ZAVEL_TOUR_CATALOGUES"), m_language)
{
    QDir().mkpath(folder);
}

// --- the two threads -----------------------------------------------------------------------------------------------

QVariant Guide::ask(const std::function<QVariant()>& look)
{
    QSemaphore seen;
    QVariant result;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            keepFrontActive();
            result = look();
            seen.release();
        },
        Qt::QueuedConnection);
    if (!seen.tryAcquire(1, patience)) {
        QTextStream(stderr) << "TOUR FAILED: the program does not answer any more\n";
        std::_Exit(1);
    }
    return result;
}

void Guide::act(const std::function<void()>& action)
{
    // Does not wait: an action that opens a modal window returns only when it closes.
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
    // Wait until the program processes events again.
    (void)ask([] { return QVariant(); });
}

void Guide::waitFor(const QString& what, const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!ask([&condition] { return QVariant(condition()); }).toBool()) {
        if (timer.elapsed() > patience)
            fail("waited in vain: " + what);
        QThread::msleep(glance);
    }
}

void Guide::fail(const QString& reason)
{
    QStringList windows = ask([] {
                              QStringList names;
                              for (QWidget* window : QApplication::topLevelWidgets()) {
                                  if (window->isVisible())
                                      names += QString("%1 \"%2\" %3")
                                                   .arg(window->metaObject()->className(), window->windowTitle(),
                                                        window->property("text").toString());
                              }
                              return QVariant(names);
                          }).toStringList();
    picture("failed");
    QTextStream(stderr) << "TOUR FAILED in \"" << m_chapter << "\": " << reason
                        << "\n  on screen: " << windows.join("; ") << "\n";
    note("FAILED: " + reason);
    std::_Exit(1);
}

// --- telling -------------------------------------------------------------------------------------------------------

void Guide::chapter(const QString& title)
{
    m_chapter = title;
    note("\n" + title + "\n" + QString(title.size(), '-'));
    QTextStream(stdout) << "tour: " << title << endl;
}

void Guide::note(const QString& line)
{
    QFile summary(m_folder + "/summary.txt");
    if (summary.open(QIODevice::Append | QIODevice::Text))
        summary.write((line + '\n').toUtf8());
}

void Guide::picture(const QString& name)
{
    const QString file = QString("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = m_folder + '/' + file;
    if (!ask([path] { return QVariant(screen().save(path)); }).toBool())
        note("could not save " + path);
    note("[" + file + "]");
}

// --- looking -------------------------------------------------------------------------------------------------------

void Guide::waitForWindow(const QString& className)
{
    waitFor("window " + className, [&className] { return isInFront(className); });
}

void Guide::waitUntilClosed(const QString& className)
{
    waitFor("end of " + className, [&className] {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && className == window->metaObject()->className())
                return false;
        }
        return true;
    });
}

void Guide::waitForWidget(const QString& widget)
{
    waitFor("widget " + widget, [&widget] { return find(widget) && find(widget)->isEnabled(); });
}

bool Guide::isAmong(const QStringList& texts, const QString& expected) const
{
    return std::any_of(texts.begin(), texts.end(), [&](const QString& text) { return m_words.says(text, expected); });
}

void Guide::expectRow(const QString& grid, const QString& rowText, const QString& cellText)
{
    waitFor("\"" + cellText + "\" in the row of \"" + rowText + "\"", [&] {
        const auto* view = qobject_cast<const QAbstractItemView*>(find(grid));
        const QAbstractItemModel* model = view ? view->model() : nullptr;
        for (int row = 0; model && row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            if (isAmong(cells, rowText) && isAmong(cells, cellText))
                return true;
        }
        return false;
    });
    note(QString("row \"%1\": %2").arg(rowText, cellText));
}

QString Guide::textOf(const QString& widget)
{
    waitFor("widget " + widget, [&widget] { return find(widget) != nullptr; });
    return ask([&widget] { return QVariant(shownText(find(widget))); }).toString();
}

void Guide::expectText(const QString& widget, const QString& text)
{
    QElapsedTimer timer;
    timer.start();
    QString actual = textOf(widget);
    while (!m_words.says(actual, text)) {
        if (timer.elapsed() > patience)
            fail(QString("%1 shows \"%2\" instead of \"%3\"").arg(widget, actual, text));
        QThread::msleep(glance);
        actual = textOf(widget);
    }
    note(QString("%1 = %2").arg(widget, text));
}

void Guide::answer(const QString& text, const QString& button)
{
    const auto theBox = [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); };
    waitFor("a box that says \"" + text + '"',
            [&] { return theBox() && theBox()->isVisible() && m_words.mentions(theBox()->text(), text); });
    note("box \"" + ask([&] { return QVariant(theBox()->text().trimmed()); }).toString() + "\" -> " + button);
    act([this, theBox, button] {
        for (QAbstractButton* candidate : theBox()->buttons()) {
            if (m_words.says(candidate->text().remove('&'), button))
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    });
}

// --- doing ---------------------------------------------------------------------------------------------------------

void Guide::resizeMainWindow(const QSize& size)
{
    act([size] {
        QWidget* window = frontWindow()->window();
        window->showNormal();
        window->setGeometry(QRect(QPoint(0, 0), size));
    });
}

void Guide::type(const QString& text)
{
    for (const QChar letter : text) {
        act([letter] {
            // Sent to the window, so that an open popup list gets the keys first, as with a real keyboard.
            if (QWindow* window = QGuiApplication::focusWindow())
                QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        });
    }
}

void Guide::key(int key, Qt::KeyboardModifiers modifiers)
{
    act([key, modifiers] {
        if (QWindow* window = QGuiApplication::focusWindow())
            QTest::keyClick(window, static_cast<Qt::Key>(key), modifiers);
    });
}

void Guide::enter(const QString& field)
{
    waitFor("field " + field, [&field] { return find(field) && find(field)->isEnabled(); });
    act([field] {
        QWidget* widget = find(field);
        QTest::mouseClick(widget, Qt::LeftButton);
        if (auto* edit = qobject_cast<QLineEdit*>(widget))
            edit->selectAll();
    });
    waitFor("the cursor in " + field, [&field] { return find(field) && find(field)->hasFocus(); });
}

void Guide::fill(const QString& field, const QString& text)
{
    enter(field);
    type(text);
}

void Guide::click(const QString& widget)
{
    waitFor("button " + widget, [&widget] { return find(widget) && find(widget)->isEnabled(); });
    act([widget] { QTest::mouseClick(find(widget), Qt::LeftButton); });
}

void Guide::chooseRow(const QString& grid, const QString& text)
{
    const auto row = [this, grid, text]() -> QModelIndex {
        const auto* view = qobject_cast<QAbstractItemView*>(find(grid));
        if (!view || !view->model())
            return {};
        for (int r = 0; r < view->model()->rowCount(); ++r) {
            for (int c = 0; c < view->model()->columnCount(); ++c) {
                if (m_words.says(view->model()->index(r, c).data().toString(), text))
                    return view->model()->index(r, c);
            }
        }
        return {};
    };
    waitFor("a row with \"" + text + "\" in " + grid, [&row] { return row().isValid(); });
    act([grid, row] {
        auto* view = qobject_cast<QAbstractItemView*>(find(grid));
        view->scrollTo(row());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(row()).center());
    });
}

void Guide::choose(const QString& box, const QString& text)
{
    const auto combo = [box] { return qobject_cast<QComboBox*>(find(box)); };
    const auto place = [this, combo, text] {
        for (int entry = 0; combo() && entry < combo()->count(); ++entry) {
            if (m_words.says(combo()->itemText(entry), text))
                return entry;
        }
        return -1;
    };
    waitFor(text + " in " + box, [&] { return place() >= 0; });
    act([combo, place] {
        // With real keys: Home, then Down to the entry.
        QTest::keyClick(combo(), Qt::Key_Home);
        for (int step = place(); step > 0; --step)
            QTest::keyClick(combo(), Qt::Key_Down);
    });
}

void Guide::lookUp(const QString& field, const QString& text)
{
    fill(field, text);
    waitFor("the list of " + field, [this] {
        const auto* list = qobject_cast<QTreeWidget*>(QApplication::activePopupWidget());
        return list && list->isVisible() && list->topLevelItemCount() > 0 &&
               !m_words.says(list->topLevelItem(0)->text(0), "No result");
    });
}

void Guide::menu(const QString& menuName, const QString& actionName, const QString& subMenuName)
{
    const auto named = [](const QString& name) -> QMenu* {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* menu = window->findChild<QMenu*>(name))
                return menu;
        }
        return nullptr;
    };
    const auto press = [this, named](const QString& pressed, const std::function<bool(const QAction*)>& isMeant) {
        act([named, pressed, isMeant] {
            QMenu* menu = named(pressed);
            for (QAction* action : menu->actions()) {
                if (isMeant(action))
                    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
            }
        });
    };
    const auto waitForMenu = [this, named](const QString& name) {
        waitFor("open menu " + name, [&] { return named(name)->isVisible(); });
    };
    waitFor("menu " + menuName, [&] { return named(menuName) != nullptr; });
    act([named, menuName] {
        QMenu* menu = named(menuName);
        auto* bar = menu->parentWidget()->window()->findChild<QMenuBar*>();
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(menu->menuAction()).center());
    });
    waitForMenu(menuName);
    if (!subMenuName.isEmpty()) {
        press(menuName, [subMenuName](const QAction* action) {
            return action->menu() && action->menu()->objectName() == subMenuName;
        });
        waitForMenu(subMenuName);
    }
    press(subMenuName.isEmpty() ? menuName : subMenuName, [actionName](const QAction* action) {
        return action->objectName() == actionName || action->data().toString() == actionName;
    });
    waitFor("closed menu " + menuName, [&] { return !named(menuName)->isVisible(); });
}

void Guide::chooseLanguage()
{
    if (!m_language.isEmpty())
        menu("menuConfiguration", m_language, "menuLanguage_2");
}

void Guide::closePage()
{
    const auto front = []() -> QWidget* {
        const QWidget* window = frontWindow();
        const auto* pages = window ? window->findChild<QTabWidget*>("tabWidget") : nullptr;
        return pages ? pages->currentWidget() : nullptr;
    };
    const QVariant page = ask([&front] { return QVariant::fromValue(quintptr(front())); });
    key(Qt::Key_Escape);
    // The shortcut clicks its button with a delay.
    waitFor("the page to close", [&front, &page] { return quintptr(front()) != page.value<quintptr>(); });
}

void Guide::pressOk()
{
    const auto button = []() -> QAbstractButton* {
        const auto* box = frontWindow() ? frontWindow()->findChild<QDialogButtonBox*>() : nullptr;
        return box ? box->button(QDialogButtonBox::Ok) : nullptr;
    };
    waitFor("an OK button", [&button] { return button() && button()->isEnabled(); });
    act([button] { QTest::mouseClick(button(), Qt::LeftButton); });
}

void Guide::expectSlip(const QStringList& texts)
{
    const QString slip = nextSlip();
    // On a slip, words and values are joined, so translated texts cannot be compared.
    if (!m_language.isEmpty())
        return;
    for (const QString& text : texts) {
        if (!slip.contains(text))
            fail("the slip lacks \"" + text + "\":\n" + slip);
    }
}

QString Guide::nextSlip()
{
    const QDir spool(qEnvironmentVariable("ZAVEL_SPOOL_DIR"));
    const auto slips = [&spool] { return spool.entryList({"*.slip"}, QDir::Files, QDir::Name); };
    waitFor("a slip", [&] { return slips().size() > m_slips; });
    const QString name = slips().at(m_slips++);
    QFile file(spool.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        fail("can not read the slip " + name);
    const QString text = QString::fromUtf8(file.readAll());
    QFile copy(m_folder + '/' + name.section('.', 0, -2) + ".txt");
    if (copy.open(QIODevice::WriteOnly))
        copy.write(text.toUtf8());
    note("slip " + name + ":\n" + text);
    return text;
}
