#pragma once

#include "pos/purchasing/document/PurchasingLinesTab.h"

class EntitySupplier;
class SelectDocumentDialog;

/**
 * The page of lines copied from another document of the supplier (an order or a purchase); all are from the same
 * document. A subclass defines which documents are offered and how a line is copied.
 */
class SourceLinesTab : public PurchasingLinesTab
{
    Q_OBJECT

public:
    /** The supplier whose documents are offered; borrowed, null for none. */
    void setSupplier(const EntitySupplier* supplier) { m_supplier = supplier; }
    /** Sets the lines of a stored document that were copied from this source. */
    void setSourceLines(int sourceId, const Lines& lines);
    /** The id of the source document; KorNoValue without lines. */
    [[nodiscard]] int sourceId() const;
    /** True if the source document is of another supplier. */
    [[nodiscard]] bool isOfOtherSupplier() const;

public slots:
    void selectSource();

protected:
    /** The button that offers the documents, and the error text for a deleted one, with its id as %1. */
    struct Source
    {
        QString buttonName;
        QString buttonText;
        QString buttonTip;
        QString serviceName;
        QString notFound;
    };

    SourceLinesTab(const Source& source, QWidget* parent);

    virtual std::unique_ptr<SelectDocumentDialog> createSelection(const EntitySupplier* supplier) = 0;
    [[nodiscard]] virtual QList<EntityPurchasingLine*> linesOfSource(const KorEntity& document) const = 0;
    /** The id of the source line. */
    [[nodiscard]] virtual int sourceLineOf(const KorEntity& line) const = 0;
    /** Fills a new line, whose item is already set. */
    virtual void fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& source) = 0;

private:
    void takeSource(const KorEntity& document);

    Source m_source;
    const EntitySupplier* m_supplier = nullptr;
    int m_sourceId = KorNoValue;
    int m_sourceSupplierId = KorNoValue;
};
