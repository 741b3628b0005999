#pragma once

#include "app/widgets/AppTab.h"

class KorEntity;
class KorEntityModel;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

/**
 * The page of a settlement form that lists what is settled: a line for each document, with its amount. The lines are
 * borrowed.
 */
class SettlementTab : public AppTab
{
    Q_OBJECT

public:
    explicit SettlementTab(const QString& gridName, QWidget* parent = nullptr);

    [[nodiscard]] const QList<KorEntity*>& lines() const { return m_lines; }
    void setLines(const QList<KorEntity*>& lines);
    void focusGrid();

signals:
    /** An amount has changed, or the lines have. */
    void Paid();

protected:
    [[nodiscard]] virtual KorEntityModel* createModel(const QList<KorEntity*>& lines) = 0;

    /** A button below the list; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon, const QString& shortcut);
    void setWidths(const QList<int>& widths) { m_widths = widths; }
    [[nodiscard]] QList<KorEntity*> selectedLines() const;
    /** Shows the lines as they are now, on the row where the cursor was, and tells that an amount has changed. */
    void linesChanged();

private:
    QList<KorEntity*> m_lines;
    QList<int> m_widths;
    QTableView* m_grid;
    QLabel* m_count;
    QHBoxLayout* m_buttons;
    KorEntityModel* m_model = nullptr;
};
