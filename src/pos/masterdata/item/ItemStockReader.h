#pragma once

#include <QHash>
#include <QObject>

#include <memory>

class ItemStock;
class KorBackgroundRead;

/**
 * Today's quantities on hand for the list of items, read beside the windows, because they take seconds after years of
 * trade. They stay until they are read anew.
 */
class ItemStockReader final : public QObject
{
    Q_OBJECT

public:
    /** The stock is borrowed. */
    ItemStockReader(const ItemStock* stock, QObject* parent);
    /** Stops reading. */
    ~ItemStockReader() override;

    /** Reads all quantities anew, in place of a read that is still under way. */
    void read();
    /** The quantity of one item that has changed since. */
    void set(int itemId, int quantity);
    /** The quantity; "..." while it is being read, "?" if that failed, 0 for an item without one. */
    [[nodiscard]] QString text(int itemId) const;

signals:
    /** The texts are others now. */
    void changed();
    /** With the database's error. */
    void failed(const QString& error);

private:
    struct Figures
    {
        QHash<int, int> quantities;
        QString error;
        bool isRead = false;
    };

    void take(const std::shared_ptr<Figures>& figures);

    const ItemStock* m_stock;
    QHash<int, int> m_quantities;
    // Set while all were being read, which may have begun before the change.
    QHash<int, int> m_newer;
    // What the thread fills; it is not looked into before the thread has ended.
    std::shared_ptr<Figures> m_awaited;
    bool m_isKnown = false;
    std::unique_ptr<KorBackgroundRead> m_thread;
};
