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
 * The page that offers documents of one supplier to choose one of. A concrete page says what it reads and shows; one
 * that has filters adds them and refreshes at the end of its constructor.
 */
class SelectDocumentTab : public AppTab
{
    Q_OBJECT

public:
    /** The id of the chosen document, KorNoValue without a choice. */
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
    /** An empty row of filters above the list, with a button that searches. */
    void addFilters(AppFilterBar* bar);

private:
    KorBusinessLogic* m_documents;
    QVBoxLayout* m_layout;
    QTableView* m_grid;
    QLabel* m_count;
    KorEntityModel* m_model = nullptr;
    EntityPool m_rows;
};
