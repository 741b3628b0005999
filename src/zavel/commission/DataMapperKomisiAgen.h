#pragma once

#include "app/numbers/NumberedMapper.h"
#include "zavel/commission/EntityKomisiAgen.h"

class DataMapperAgent;
class DataMapperBank;
class DataMapperInvoice;
class DataMapperKomisiAgenDetail;
struct CommissionFilter;

/** Commission payments with their lines, in the tables "komisi_agen" and "komisi_agen_detail". */
class DataMapperKomisiAgen final : public NumberedDocumentMapper<EntityKomisiAgen>
{
    Q_OBJECT

public:
    DataMapperKomisiAgen(QObject* parent, DataMapperKey* keys, DataMapperAgent* agents, DataMapperBank* accounts,
                         DataMapperInvoice* invoices);

    [[nodiscard]] QString keyName() const override { return "KAG"; }
    KorEntity* createEntity() override;
    /** Without lines, the latest first. */
    [[nodiscard]] QList<EntityKomisiAgen*> search(const CommissionFilter& filter);
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] DataMapperKomisiAgenDetail* lines() const;

protected:
    [[nodiscard]] const Messages& messages() const override;
};
