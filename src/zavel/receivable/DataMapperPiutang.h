#pragma once

#include "app/numbers/NumberedMapper.h"
#include "zavel/receivable/EntityPiutang.h"

class DataMapperAgent;
class DataMapperBank;
class DataMapperEmployee;
class DataMapperInvoice;
class DataMapperMember;
class DataMapperPiutangDetail;
struct ReceivableFilter;

/** Members' payments with their lines, in the tables "piutang" and "piutang_detail". */
class DataMapperPiutang final : public NumberedDocumentMapper<EntityPiutang>
{
    Q_OBJECT

public:
    DataMapperPiutang(QObject* parent, DataMapperKey* keys, DataMapperMember* members, DataMapperBank* accounts,
                      DataMapperInvoice* invoices, DataMapperEmployee* employees, DataMapperAgent* agents);

    [[nodiscard]] QString keyName() const override { return "PIU"; }
    KorEntity* createEntity() override;
    /** Without lines, the latest first. */
    [[nodiscard]] QList<EntityPiutang*> search(const ReceivableFilter& filter);
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] DataMapperPiutangDetail* lines() const;

protected:
    [[nodiscard]] const Messages& messages() const override;
};
