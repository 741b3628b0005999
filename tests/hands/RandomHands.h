#pragma once

#include <QList>
#include <QRandomGenerator>
#include <QStringList>

#include <functional>

class KorTab;
class MainWindow;
class QObject;
class QTextStream;
class QWidget;

/**
 * Sends random input at random speed: opens pages, sends their keys and those of their forms, types codes, numbers and
 * nonsense into the focused widget, clicks buttons and rows. The seed decides the inputs; their effects also depend on
 * the speed of the machine.
 */
class RandomHands
{
public:
    RandomHands(MainWindow& window, quint32 seed);

    /** Writes each input to the log at once, so that the last line shows the input before a crash. */
    void setLog(QTextStream* log) { m_log = log; }
    /** Adds an event that happens from time to time, such as a lost connection or a change of the language. */
    void addEvent(const QString& name, const std::function<void()>& event) { m_events.append({name, event}); }
    /** Sends this many inputs, then closes everything that was opened. */
    void play(int strokes);

private:
    struct Event
    {
        QString name;
        std::function<void()> happen;
    };

    void scheduleNext(QObject* context);
    void act();
    /** Closes what is open after the last input. */
    void giveUp();
    void strikeSomething(QWidget* place);
    void startAnErrand();
    void goOnWithTheErrand();
    void typeSomething();
    static void type(const QString& word);
    void tapSomething(QWidget* place);
    /** Clicks the middle of the widget, or one of the first rows of a grid. */
    void tap(const QWidget* target);
    void openSomePage();
    void write(const QString& what);
    [[nodiscard]] KorTab* page() const;
    [[nodiscard]] int below(int limit) { return int(m_chance.bounded(limit)); }
    template <class List>
    [[nodiscard]] auto oneOf(const List& list)
    {
        return list.at(below(list.size()));
    }

    MainWindow& m_window;
    QRandomGenerator m_chance;
    QTextStream* m_log = nullptr;
    QList<Event> m_events;
    QString m_told;
    QStringList m_errand;
    int m_left = 0;
    int m_closings = 0;
};
