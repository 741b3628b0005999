#pragma once

#include "app/widgets/AppListTab.h"

class EmployeeTextBox;
class EntityInvoiceFastFood;
class QComboBox;
class QDateEdit;
class QLabel;

/** The page of the counter: enters a sale and its payment in one form, and lists the sales. */
class TabFastFood final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabFastFood(QWidget* parent = nullptr);

public slots:
    void on_btnAdd_clicked() override;

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    [[nodiscard]] QString notFoundText(int id) const override;
    [[nodiscard]] int addKey() const override;
    [[nodiscard]] int editKey() const override;
    [[nodiscard]] int deleteKey() const override;
    [[nodiscard]] bool asksOnce(int key) const override;
    KorEntity* readEntity(int id) override;
    bool editEntity(KorEntity* sale) override;
    bool insertEntity(KorEntity* sale) override;
    bool updateEntity(KorEntity* sale) override;
    bool removeEntity(KorEntity* sale) override;
    void entitySaved(KorEntity* sale) override;

private:
    void makeFilters();
    void nameButtons();
    void makeChangeRow();
    /** Shows the change of the saved sale after its form has closed, until the next sale begins. */
    void showChange(const EntityInvoiceFastFood& sale);

    QDateEdit* m_from = nullptr;
    QDateEdit* m_to = nullptr;
    QComboBox* m_status = nullptr;
    EmployeeTextBox* m_employee = nullptr;
    QWidget* m_changeRow;
    QLabel* m_sale;
    QLabel* m_change;
    bool m_soldNow = false;
};
