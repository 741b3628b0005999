#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/** Covers a window while the program waits for the server; shows what it waits for and the button that stops it. */
class KorWaitingPanel final : public QWidget
{
    Q_OBJECT

public:
    /** Covers the window; without one it is a separate window in the middle of the screen. */
    explicit KorWaitingPanel(QWidget* window);

    void tell(const QString& holders);
    void offerStop(bool offered);
    /** True if the stop button is shown and this screen position is on it. */
    [[nodiscard]] bool isStopAt(const QPoint& place) const;
    [[nodiscard]] bool offersStop() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_holders;
    QPushButton* m_stop;
    QLabel* m_key;
};
