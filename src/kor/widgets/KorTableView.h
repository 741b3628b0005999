#pragma once

#include <QPointer>
#include <QTableView>

/** A grid inside a form: Tab moves to the next widget instead of the next cell. */
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
