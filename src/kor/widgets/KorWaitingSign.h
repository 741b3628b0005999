#pragma once

#include "kor/persistence/KorServerCall.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class KorWaitingPanel;
class QWidget;

/**
 * "Waiting for the server..." over the window in use, for as long as a statement of the program waits. The windows keep
 * painting. Nothing that is typed or pressed meanwhile counts, but "Stop waiting", which appears after five seconds; no
 * timer fires, and no box gets or loses the cursor, so that nothing runs into the middle of a save.
 */
class KorWaitingSign final : public QObject, public KorServerWatcher
{
    Q_OBJECT

public:
    /** Shows it from now on, for the whole program. */
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
    /** Whether this press, tap or key means "Stop waiting". */
    [[nodiscard]] bool isStop(QEvent* event) const;

    // A child of the window that it covers, or a window of its own before there is one.
    QPointer<KorWaitingPanel> m_panel;
    bool m_stopped = false;
    bool m_busy = false;
    QTimer m_end;
};
