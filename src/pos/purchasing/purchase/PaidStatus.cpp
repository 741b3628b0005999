#include "pos/purchasing/purchase/PaidStatus.h"

#include "app/widgets/StatusMark.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"

namespace
{
constexpr QRgb paidRgb = 0xffe7f4ea;
constexpr QRgb partialRgb = 0xfffdf3d9;
constexpr QRgb unpaidRgb = 0xfffdeae7;
} // namespace

QString paidStatusText(int status)
{
    switch (status) {
    case EntityAcquisition::FULL_PAID:
        return EntityAcquisition::tr("Fully Paid");
    case EntityAcquisition::UNPAID:
        return EntityAcquisition::tr("Unpaid");
    case EntityAcquisition::PARTIALLY_PAID:
        return EntityAcquisition::tr("Partially Paid");
    default:
        return EntityAcquisition::tr("None");
    }
}

QColor paidStatusColour(int status)
{
    switch (status) {
    case EntityAcquisition::FULL_PAID:
        return paidRgb;
    case EntityAcquisition::UNPAID:
        return unpaidRgb;
    case EntityAcquisition::PARTIALLY_PAID:
        return partialRgb;
    default:
        return {};
    }
}

QIcon paidStatusMark(int status)
{
    switch (status) {
    case EntityAcquisition::FULL_PAID:
        return statusMark("paid");
    case EntityAcquisition::UNPAID:
        return statusMark("unpaid");
    case EntityAcquisition::PARTIALLY_PAID:
        return statusMark("partial");
    default:
        return {};
    }
}
