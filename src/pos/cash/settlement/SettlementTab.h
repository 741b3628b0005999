#pragma once

#include "app/widgets/AppTab.h"

class KorEntity;
class KorEntityModel;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableView;

/** The page of a settlement form with one line per document and its amount. The lines are borrowed. */
class SettlementTab : public AppTab
{
    Q_OBJECT

public:
    explicit SettlementTab(const QString& gridName, QWidget* parent = nullptr);

    [[nodiscard]] const QList<KorEntity*>& lines() const { return m_lines; }
    void setLines(const QList<KorEntity*>& lines);
    void focusGrid();

signals:
    /** The lines or an amount have changed. */
    void Paid();

protected:
    [[nodiscard]] virtual KorEntityModel* createModel(const QList<KorEntity*>& lines) = 0;

    /** Adds a button below the list; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon, const QString& shortcut);
    void setWidths(const QList<int>& widths) { m_widths = widths; }
    [[nodiscard]] QList<KorEntity*> selectedLines() const;
    /** Shows the changed lines, keeps the current row and emits Paid(). */
    void linesChanged();

private:
    QList<KorEntity*> m_lines;
    QList<int> m_widths;
    QTableView* m_grid;
    QLabel* m_count;
    QHBoxLayout* m_buttons;
    KorEntityModel* m_model = nullptr;
};
