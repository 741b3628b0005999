#pragma once

#include <QObject>
#include <QStringList>

class KorInstaller;
class QMainWindow;

/**
 * The update of the database as the main window goes through it: the wizard, and after it, for as long as the work
 * goes on without the wizard, a window that can neither be worked in nor closed.
 */
class DatabaseUpdate final : public QObject
{
    Q_OBJECT

public:
    explicit DatabaseUpdate(QMainWindow* window);

    /** Shows the wizard, until it is closed. */
    void offer();
    [[nodiscard]] bool isRunning() const { return m_running; }

signals:
    /** Whatever uses the database has to go. */
    void entered();
    /** The window may use the database again, whether it was changed or not. */
    void left();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(KorInstaller* installer);
    void leave();
    void tellResult();

    QMainWindow* m_window;
    bool m_entered = false;
    bool m_running = false;
    bool m_wizardOpen = false;
    QStringList m_failures;
};
