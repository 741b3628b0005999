#include "pos/masterdata/company/QPictureLabel.h"

QPictureLabel::QPictureLabel(QWidget* parent) : QLabel(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void QPictureLabel::setImage(const QPixmap& image)
{
    m_image = image;
    showImage();
}

void QPictureLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    showImage();
}

void QPictureLabel::showImage()
{
    if (m_image.isNull()) {
        clear();
        return;
    }
    const QSize room = contentsRect().size() * devicePixelRatioF();
    QPixmap shown = m_image;
    if (m_image.width() > room.width() || m_image.height() > room.height())
        shown = m_image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    setPixmap(shown);
}
