#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogDataPerusahaan;
}

/** The entry form of the company profile and its logo. */
class DialogDataPerusahaan final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogDataPerusahaan(QWidget* parent = nullptr);
    ~DialogDataPerusahaan() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private slots:
    void on_btnLoadImage_clicked();
    void on_btnClear_clicked();

private:
    /** The bytes of the chosen file, or else of the picture in the label; null if there is none. */
    [[nodiscard]] QByteArray logoBytes() const;

    std::unique_ptr<Ui::DialogDataPerusahaan> m_ui;
    QString m_imagePath;
};
