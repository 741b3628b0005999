#include "zavel/order/SlipRequests.h"

#include <QPointer>

namespace
{
QPointer<SlipRequests>& answering()
{
    static QPointer<SlipRequests> requests;
    return requests;
}
} // namespace

SlipRequests* SlipRequests::instance() { return answering(); }

SlipRequests::SlipRequests(QObject* parent) : QObject(parent) { answering() = this; }
