#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/purchasing/document/PurchasingFilter.h"

class QComboBox;
class QDateEdit;
class QLineEdit;
class SupplierTextBox;

/** The list page of one kind of purchasing documents: the filters that all of them have. */
class PurchasingListTab : public AppListTab
{
    Q_OBJECT

protected:
    /** The box that tells documents apart, and where the text is searched: rows of PurchasingFilter::Field. */
    struct Filters
    {
        QString kindName;
        QString kindLabel;
        AppFilterBar::Rows kinds;
        AppFilterBar::Rows fields;
    };

    /** A concrete page refreshes at the end of its own constructor. */
    PurchasingListTab(const Page& page, const Filters& words, QWidget* parent);

    [[nodiscard]] PurchasingFilter chosen() const;

    /** A document that has gone is told in the same words wherever it is missed. */
    [[nodiscard]] QString deleteNotFoundText(int id) const override { return notFoundText(id); }
    bool insertEntity(KorEntity* document) override;
    bool updateEntity(KorEntity* document) override;

private:
    bool stands(bool done, const KorEntity& document);

    QDateEdit* m_from;
    QDateEdit* m_to;
    QComboBox* m_kind;
    QLineEdit* m_supplier;
    SupplierTextBox* m_suppliers;
    QLineEdit* m_text;
    QComboBox* m_field;
};
