#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperCreditNote;

/** The service of credit notes. */
class BusinessCreditNote final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS {
        INSERT_CREDIT_NOTE,
        UPDATE_CREDIT_NOTE,
        DELETE_CREDIT_NOTE,
        INSERT_CREDIT_NOTE_DETAIL,
        UPDATE_CREDIT_NOTE_DETAIL,
        DELETE_CREDIT_NOTE_DETAIL
    };
    Q_ENUM(PERMISSIONS)

    BusinessCreditNote(QObject* parent, DataMapperCreditNote* notes);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

private:
    DataMapperCreditNote* m_notes;
};
