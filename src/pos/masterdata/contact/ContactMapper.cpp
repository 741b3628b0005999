#include "pos/masterdata/contact/ContactMapper.h"

#include "kor/entity/KorMetaDataMap.h"
#include "pos/masterdata/account/DataMapperBank.h"

void ContactMapper::contactColumns(const QString& table, const QString& emailType)
{
    setName(table);
    metaData()->setTableName(table);
    column("kode", "varchar(20) not null UNIQUE", "Kode");
    column("nama", "varchar(200) not null", "Nama");
    column("alamat", "varchar(500) not null", "Alamat");
    column("telp", "varchar(20) not null", "Telp");
    column("email", emailType, "Email");
}

void ContactMapper::payeeColumns(DataMapperBank* bankMapper, const QString& nameType, const QString& notesType)
{
    reference("bank_id", "integer null", "Bank", bankMapper, "left");
    column("norek", "varchar(20)  null", "NoRek");
    column("norek_atasnama", nameType, "NoRekAtasNama");
    column("notes", notesType, "Notes");
}
