#pragma once

#include "app/numbers/DocumentNumber.h"
#include "app/persistence/AppDocumentLines.h"
#include "app/persistence/IdKeeper.h"
#include "kor/persistence/KorDatabase.h"

/** Adds a running number to the mapper Base: its records get a number when they are inserted. */
template <class Base>
class NumberedMapper : public Base
{
public:
    /** The further arguments go to the constructor of Base. */
    template <class... Parts>
    NumberedMapper(QObject* parent, DataMapperKey* keys, Parts... parts) : Base(parent, parts...), m_keys(keys)
    {}

    /** The name of the running number. */
    [[nodiscard]] virtual QString keyName() const = 0;
    /** Null if no number could be drawn; the mapper then has an error. */
    [[nodiscard]] QString nextNo()
    {
        QString error;
        QString number = drawNumber(m_keys, keyName(), &error);
        if (number.isNull())
            this->setError(error);
        return number;
    }

private:
    DataMapperKey* m_keys;
};

/** A numbered document with lines. The number is drawn in the document's transaction; a rollback also returns it. */
template <class Document, class Base = AppLinedDocumentMapper<Document>>
class NumberedDocumentMapper : public NumberedMapper<Base>
{
public:
    using NumberedMapper<Base>::NumberedMapper;

    /** For imported documents: they keep their own numbers from now on. */
    void keepGivenNumbers() { m_keepsNumbers = true; }

protected:
    [[nodiscard]] QStringList locksOfInsert(const KorEntity&) const override
    {
        return m_keepsNumbers ? QStringList() : QStringList{numberLock(this->keyName())};
    }
    bool beforeInsert(KorEntity* document) override
    {
        if (m_keepsNumbers)
            return true;
        const QString number = this->nextNo();
        static_cast<Document*>(document)->setNo(number);
        return !number.isNull();
    }

private:
    bool m_keepsNumbers = false;
};

/** A numbered record without lines; the number is in TransNo. */
template <class Entry>
class NumberedEntryMapper : public NumberedMapper<AppDataMapper>
{
public:
    using NumberedMapper<AppDataMapper>::NumberedMapper;

    /**
     * If an earlier insert of the record may have been committed (see uncertainId()), it looks for that row first. If
     * it exists, it is updated, so that nothing is inserted twice.
     */
    bool insert(KorEntity* entity) override
    {
        auto* entry = static_cast<Entry*>(entity);
        const IdKeeper ids({entity});
        // In one transaction, so that a failed insert returns its number.
        KorTransaction transaction({numberLock(keyName())});
        if (!transaction.isOpen() || transaction.isRefused()) {
            setError(transaction.failure());
            return false;
        }
        const QString number = nextNo();
        if (number.isNull())
            return false;
        // After drawing the number, whose lock the earlier insert holds until it has ended.
        bool stands = false;
        if (entity->uncertainId() != KorNoValue && !findFormer(*entry, &stands))
            return false;
        if (stands) {
            transaction.rollback();
            return updateFormer(*entry);
        }
        entry->setTransNo(number);
        if (AppDataMapper::insert(entity)) {
            if (transaction.commit())
                return true;
            setError(transaction.failure());
            if (transaction.isUnsure())
                entity->setUncertainId(entity->getId());
        }
        ids.restore();
        return false;
    }

private:
    bool findFormer(const Entry& entry, bool* stands)
    {
        KorQuery query;
        if (!execute(query, "select id from " + tableName() + " where id = :id and trans_no = :no",
                     {{":id", entry.uncertainId()}, {":no", entry.getTransNo()}}))
            return false;
        *stands = query.next();
        return true;
    }

    bool updateFormer(Entry& entry)
    {
        entry.setId(entry.uncertainId());
        if (update(&entry)) {
            entry.setUncertainId(KorNoValue);
            return true;
        }
        entry.setId(KorNoValue);
        return false;
    }
};
