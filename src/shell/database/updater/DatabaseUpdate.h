#pragma once

#include <QObject>
#include <QStringList>

class KorInstaller;
class QMainWindow;

/**
 * The database update from the main window: shows the wizard. If it is closed during the update, the main window is
 * disabled and cannot be closed until the end.
 */
class DatabaseUpdate final : public QObject
{
    Q_OBJECT

public:
    explicit DatabaseUpdate(QMainWindow* window);

    /** Shows the wizard; returns when it is closed. */
    void offer();
    [[nodiscard]] bool isRunning() const { return m_running; }

signals:
    /** Everything that uses the database must be closed. */
    void entered();
    /** The database may be used again, whether it was updated or not. */
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
