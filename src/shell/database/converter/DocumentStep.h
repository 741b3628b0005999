#pragma once

#include "shell/database/converter/Conversion.h"

class PurchasingService;

/** Base of the conversion of purchases and payments: documents with a unique number and lines in a second table. */
class DocumentStep
{
    Q_DECLARE_TR_FUNCTIONS(DocumentStep)

public:
    DocumentStep(Conversion& run, PurchasingService* service) : m_run(run), m_service(service) {}
    virtual ~DocumentStep();
    Q_DISABLE_COPY(DocumentStep)

    void convert(const LegacyRow& row);
    /**
     * Saves the last document of an interrupted run again, since its journal rows and dues, written after the save, may
     * be missing.
     */
    void end();

protected:
    /** The number of the document in this row. */
    [[nodiscard]] virtual QString numberIn(const LegacyRow& row) const = 0;
    /** The stored document of that number, or null. */
    [[nodiscard]] virtual KorEntity* stored(const QString& no) = 0;
    virtual void convertNew(const LegacyRow& row, const QString& no) = 0;

    [[nodiscard]] Conversion& run() const { return m_run; }
    /** Counts a line; false for one that was deleted in the former system. */
    [[nodiscard]] bool takesLine(const LegacyRow& line, const QString& key);
    /** The row's date, or the other one if it has none; that is noted for the report. */
    [[nodiscard]] QDate dateOr(const QDate& date, const QDate& other);
    bool save(KorEntity& document, const QString& no, int lineCount);

private:
    Conversion& m_run;
    PurchasingService* m_service;
    int m_latest = KorNoValue;
};
