#pragma once

#include "kor/persistence/KorServerCall.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class KorWaitingPanel;
class QWidget;

/**
 * Shows "Waiting for the server..." over the active window while a statement waits. Windows still repaint. Keys and
 * clicks are dropped, except on "Stop waiting", which appears after five seconds. No timer fires and no box gets or
 * loses the focus, so that nothing runs in the middle of a save.
 */
class KorWaitingSign final : public QObject, public KorServerWatcher
{
    Q_OBJECT

public:
    /** Installs it for the whole program. */
    static void watch();
    ~KorWaitingSign() override;

    [[nodiscard]] bool goOn(const KorServerWait& wait) override;
    void ended() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KorWaitingSign(QObject* parent);

    void begin();
    void end();
    void paint();
    /** True if this key, click or tap means "Stop waiting". */
    [[nodiscard]] bool isStop(QEvent* event) const;

    // A child of the window that it covers, or a separate window if there is none.
    QPointer<KorWaitingPanel> m_panel;
    bool m_stopped = false;
    bool m_busy = false;
    QTimer m_end;
};
