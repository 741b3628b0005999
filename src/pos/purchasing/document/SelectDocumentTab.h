#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"

class AppFilterBar;
class KorBusinessLogic;
class KorEntityModel;
class QLabel;
class QTableView;
class QVBoxLayout;

/**
 * A list of one supplier's documents to choose from. A subclass defines what is read and shown. If it has filters, it
 * adds them and calls refresh() at the end of its constructor.
 */
class SelectDocumentTab : public AppTab
{
    Q_OBJECT

public:
    /** The id of the chosen document; KorNoValue if none is chosen. */
    [[nodiscard]] int selectedId() const;

signals:
    void chosen();

public slots:
    void refresh();

protected:
    SelectDocumentTab(const QString& gridName, KorBusinessLogic* documents, QWidget* parent);

    virtual QList<KorEntity*> readRows() = 0;
    virtual KorEntityModel* createModel(const QList<KorEntity*>& rows) = 0;
    [[nodiscard]] virtual QList<int> columnWidths() const { return {}; }
    /** Adds a filter bar above the list, with a search button. */
    void addFilters(AppFilterBar* bar);

private:
    KorBusinessLogic* m_documents;
    QVBoxLayout* m_layout;
    QTableView* m_grid;
    QLabel* m_count;
    KorEntityModel* m_model = nullptr;
    EntityPool m_rows;
};
