#include "pos/masterdata/item/ItemStockReader.h"

#include "kor/persistence/KorBackgroundRead.h"
#include "pos/masterdata/item/ItemStock.h"

ItemStockReader::ItemStockReader(const ItemStock* stock, QObject* parent) : QObject(parent), m_stock(stock) {}

ItemStockReader::~ItemStockReader() = default;

void ItemStockReader::read()
{
    m_newer.clear();
    m_quantities.clear();
    m_awaited = std::make_shared<Figures>();
    const auto figures = m_awaited;
    m_thread = std::make_unique<KorBackgroundRead>([stock = m_stock, day = QDate::currentDate(), figures] {
        figures->isRead = stock->readOnHand(day, figures->quantities, figures->error);
    });
    connect(m_thread.get(), &QThread::finished, this, [this, figures] {
        // The message of a former read may still be on its way.
        if (figures == m_awaited)
            take(figures);
    });
    m_thread->start();
    emit changed();
}

void ItemStockReader::take(const std::shared_ptr<Figures>& figures)
{
    m_awaited.reset();
    m_isKnown = figures->isRead;
    if (m_isKnown)
        m_quantities = figures->quantities;
    for (auto item = m_newer.cbegin(); item != m_newer.cend(); ++item)
        m_quantities.insert(item.key(), item.value());
    emit changed();
    if (!m_isKnown)
        emit failed(figures->error);
}

void ItemStockReader::set(int itemId, int quantity)
{
    m_quantities.insert(itemId, quantity);
    if (m_awaited)
        m_newer.insert(itemId, quantity);
    emit changed();
}

QString ItemStockReader::text(int itemId) const
{
    const auto found = m_quantities.constFind(itemId);
    if (found != m_quantities.cend())
        return QString::number(*found);
    if (m_awaited)
        return QStringLiteral("...");
    return m_isKnown ? QStringLiteral("0") : QStringLiteral("?");
}
