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
    /**
     * The box that tells documents apart, where the text is searched (rows of PurchasingFilter::Field), and what is
     * asked before a document is deleted, with its number as %1.
     */
    struct Words
    {
        QString kindName;
        QString kindLabel;
        AppFilterBar::Rows kinds;
        AppFilterBar::Rows fields;
        QString deleteQuestion;
    };

    /** A concrete page refreshes at the end of its own constructor. */
    PurchasingListTab(const Page& page, const Words& words, QWidget* parent);

    [[nodiscard]] PurchasingFilter chosen() const;

    /** A document that has gone is told in the same words wherever it is missed. */
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
