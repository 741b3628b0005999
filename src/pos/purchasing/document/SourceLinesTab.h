#pragma once

#include "pos/purchasing/document/PurchasingLinesTab.h"

class EntitySupplier;
class SelectDocumentDialog;

/**
 * The page of lines that are taken over from another document of the supplier: an order, a purchase. All of them are
 * of one document. A concrete page says which documents are offered and what is made of their lines.
 */
class SourceLinesTab : public PurchasingLinesTab
{
    Q_OBJECT

public:
    /** Whose documents are offered; null for nobody's. The supplier is borrowed. */
    void setSupplier(const EntitySupplier* supplier) { m_supplier = supplier; }
    /** The lines of a stored document, which come from this one. */
    void setSourceLines(int sourceId, const Lines& lines);
    /** KorNoValue without lines. */
    [[nodiscard]] int sourceId() const;
    /** Whether the lines come from a document of another supplier. */
    [[nodiscard]] bool isOfOtherSupplier() const;

public slots:
    void selectSource();

protected:
    /** The button that offers the documents, and what is told of one that has gone, with its id as %1. */
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
    /** The line of the other document that this one comes from. */
    [[nodiscard]] virtual int sourceLineOf(const KorEntity& line) const = 0;
    /** Fills a new line, which has the item already. */
    virtual void fillFrom(EntityPurchasingLine* line, const EntityPurchasingLine& source) = 0;

private:
    void takeSource(const KorEntity& document);

    Source m_source;
    const EntitySupplier* m_supplier = nullptr;
    int m_sourceId = KorNoValue;
    int m_sourceSupplierId = KorNoValue;
};
