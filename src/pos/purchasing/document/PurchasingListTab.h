#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/purchasing/document/PurchasingFilter.h"

class QComboBox;
class QDateEdit;
class QLineEdit;
class SupplierTextBox;

/** Base of the lists of purchasing documents, with their common filters. */
class PurchasingListTab : public AppListTab
{
    Q_OBJECT

protected:
    /**
     * The combo box for the kind of document, the choice of searched fields (rows of PurchasingFilter::Field), and the
     * question before deleting, with the number as %1.
     */
    struct Words
    {
        QString kindName;
        QString kindLabel;
        AppFilterBar::Rows kinds;
        AppFilterBar::Rows fields;
        QString deleteQuestion;
    };

    /** A subclass calls refresh() at the end of its constructor. */
    PurchasingListTab(const Page& page, const Words& words, QWidget* parent);

    [[nodiscard]] PurchasingFilter chosen() const;

    /** The same text as when editing a document that was deleted meanwhile. */
    [[nodiscard]] QString deleteNotFoundText(int id) const override { return notFoundText(id); }
    [[nodiscard]] QString deleteQuestion(const KorEntity* document) const override;
    bool insertEntity(KorEntity* document) override;
    bool updateEntity(KorEntity* document) override;

private:
    bool stands(bool done, const KorEntity& document);

    QString m_deleteQuestion;
    QDateEdit* m_from;
    QDateEdit* m_to;
    QComboBox* m_kind;
    QLineEdit* m_supplier;
    SupplierTextBox* m_suppliers;
    QLineEdit* m_text;
    QComboBox* m_field;
};
