#pragma once

#include <QLabel>
#include <QPixmap>

/** A label that keeps a picture in full size and shows it scaled to the label, with its aspect ratio. */
class QPictureLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QPictureLabel(QWidget* parent = nullptr);

    /** The picture in full size; null if there is none. */
    [[nodiscard]] const QPixmap& image() const { return m_image; }
    void setImage(const QPixmap& image);

    // The picture must not change the size of the label.
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return minimumSize(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showImage();

    QPixmap m_image;
};
