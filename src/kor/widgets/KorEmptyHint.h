#pragma once

#include <QLabel>

class QAbstractItemView;

/** A line in the middle of a grid that says so when there is nothing to show. */
class KorEmptyHint final : public QLabel
{
    Q_OBJECT

public:
    /** Gives the view its hint on the first call, and follows the model that the view has now. */
    static void attach(QAbstractItemView* view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KorEmptyHint(QAbstractItemView* view);
    void follow();
    void update();

    QAbstractItemView* m_view;
};
