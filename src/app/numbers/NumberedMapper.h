#pragma once

#include "app/numbers/DocumentNumber.h"
#include "app/persistence/AppDocumentLines.h"
#include "app/persistence/IdKeeper.h"
#include "kor/persistence/KorDatabase.h"

/** A mapper, on top of the base that it would have without, whose records take a running number at their insert. */
template <class Base>
class NumberedMapper : public Base
{
public:
    /** What the base is made of besides follows the keys. */
    template <class... Parts>
    NumberedMapper(QObject* parent, DataMapperKey* keys, Parts... parts) : Base(parent, parts...), m_keys(keys)
    {}

    /** The name of the running number. */
    [[nodiscard]] virtual QString keyName() const = 0;
    /** Null where no number could be drawn; the mapper's error then says why. */
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

/** A numbered document with lines: the number is drawn in the document's transaction and goes back with it. */
template <class Document, class Base = AppLinedDocumentMapper<Document>>
class NumberedDocumentMapper : public NumberedMapper<Base>
{
public:
    using NumberedMapper<Base>::NumberedMapper;

    /** For documents that come from elsewhere: from now on they keep the numbers that they bring, and draw none. */
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

/** A numbered record without lines, with its number in TransNo. */
template <class Entry>
class NumberedEntryMapper : public NumberedMapper<AppDataMapper>
{
public:
    using NumberedMapper<AppDataMapper>::NumberedMapper;

    /**
     * Of a record whose former insert may stand, it looks for that one first: found, it takes what the record holds
     * now, and nothing is entered twice.
     */
    bool insert(KorEntity* entity) override
    {
        auto* entry = static_cast<Entry*>(entity);
        const IdKeeper ids({entity});
        // In one transaction, so that an entry that fails gives its number back.
        KorTransaction transaction({numberLock(keyName())});
        if (!transaction.isOpen() || transaction.isRefused()) {
            setError(transaction.failure());
            return false;
        }
        const QString number = nextNo();
        if (number.isNull())
            return false;
        // Behind the number, which a former insert holds until it has ended.
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
