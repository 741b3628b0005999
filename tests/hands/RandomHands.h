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
 * Somebody who presses anything, at any speed: opens pages, strikes their keys and those of the forms over them, types
 * codes, figures and nonsense into whatever has the focus, taps buttons and rows. What is pressed follows from the
 * seed; what comes of it also hangs on how fast the machine answers.
 */
class RandomHands
{
public:
    RandomHands(MainWindow& window, quint32 seed);

    /** Each stroke is written there at once, so that the last line tells what a crash came of. */
    void setLog(QTextStream* log) { m_log = log; }
    /** Something else that happens once in a while, wherever the hands are: a lost connection, another language. */
    void addEvent(const QString& name, const std::function<void()>& event) { m_events.append({name, event}); }
    /** Runs until the hands have struck so often, and everything that they opened is closed again. */
    void play(int strokes);

private:
    struct Event
    {
        QString name;
        std::function<void()> happen;
    };

    void scheduleNext(QObject* context);
    void act();
    /** What is open after the last stroke is closed again. */
    void giveUp();
    void strikeSomething(QWidget* place);
    void startAnErrand();
    void goOnWithTheErrand();
    void typeSomething();
    static void type(const QString& word);
    void tapSomething(QWidget* place);
    /** In the middle, or on one of the first rows of a grid. */
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
