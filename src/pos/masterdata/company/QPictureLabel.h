#pragma once

#include <QLabel>
#include <QPixmap>

/** A label that holds a picture in its full size and shows it as large as the label allows, in its proportions. */
class QPictureLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QPictureLabel(QWidget* parent = nullptr);

    /** The picture itself, not what is shown of it; null for an empty label. */
    [[nodiscard]] const QPixmap& image() const { return m_image; }
    void setImage(const QPixmap& image);

    // The label's size rules the picture's, never the other way round.
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return minimumSize(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showImage();

    QPixmap m_image;
};
