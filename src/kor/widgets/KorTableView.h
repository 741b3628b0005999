#pragma once

#include <QPointer>
#include <QTableView>

/** A grid inside a form: Tab hands the focus on to the next widget instead of walking the cells. */
class KorTableView : public QTableView
{
    Q_OBJECT

public:
    explicit KorTableView(QWidget* parent = nullptr) : QTableView(parent) {}

    void setNextWidget(QWidget* widget) { m_nextWidget = widget; }
    [[nodiscard]] QWidget* nextWidget() const { return m_nextWidget; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<QWidget> m_nextWidget;
};
