#pragma once

#include <QLabel>

class QAbstractItemView;

/** A text in the middle of an empty grid that says that there is nothing to show. */
class KorEmptyHint final : public QLabel
{
    Q_OBJECT

public:
    /** Creates the view's hint on the first call, then follows the view's current model. */
    static void attach(QAbstractItemView* view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KorEmptyHint(QAbstractItemView* view);
    void follow();
    void update();

    QAbstractItemView* m_view;
};
