#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/** The veil over a window whose program waits for the server, with what it waits for and the button that ends it. */
class KorWaitingPanel final : public QWidget
{
    Q_OBJECT

public:
    /** Covers the window; without one it is a window of its own in the middle of the screen. */
    explicit KorWaitingPanel(QWidget* window);

    void tell(const QString& holders);
    void offerStop(bool offered);
    /** Whether the button is there and this place of the screen lies on it. */
    [[nodiscard]] bool isStopAt(const QPoint& place) const;
    [[nodiscard]] bool offersStop() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_holders;
    QPushButton* m_stop;
    QLabel* m_key;
};
