#include "pos/masterdata/company/DialogDataPerusahaan.h"

#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"

#include "ui_DialogDataPerusahaan.h"

#include <QBuffer>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

DialogDataPerusahaan::DialogDataPerusahaan(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogDataPerusahaan>())
{
    m_ui->setupUi(this);
    edits<EntityDataPerusahaan>({{m_ui->txtNama, "NamaPerusahaan"},
                                 {m_ui->txtAlamat, "Alamat"},
                                 {m_ui->txtPhone, "Telp"},
                                 {m_ui->txtFax, "Fax"},
                                 {m_ui->txtNPWP, "NPWP"},
                                 {m_ui->txtTglPKP, "TanggalPKP"}});
    on_btnClear_clicked();
    focusLater(m_ui->txtNama);
}

DialogDataPerusahaan::~DialogDataPerusahaan() = default;

bool DialogDataPerusahaan::validate()
{
    require(m_ui->txtNama, tr("Enter company name"));
    requireText(m_ui->txtAlamat, m_ui->txtAlamat->toPlainText(), tr("Enter company address"));
    require(m_ui->txtPhone, tr("Enter phone no"));
    return !hasError();
}

KorEntity* DialogDataPerusahaan::getEntity()
{
    KorDialog::getEntity();
    auto* profile = held<EntityDataPerusahaan>();
    const QByteArray bytes = logoBytes();
    if (bytes.isEmpty())
        return profile;
    if (!profile->getLogo())
        profile->setLogo(new EntityImage(profile));
    profile->getLogo()->setImageName(BusinessDataPerusahaan::logoName());
    profile->getLogo()->setImageData(bytes);
    return profile;
}

QByteArray DialogDataPerusahaan::logoBytes() const
{
    QFile file(m_imagePath);
    if (!m_imagePath.isEmpty() && file.open(QIODevice::ReadOnly))
        return file.readAll();
    if (m_ui->lblImage->image().isNull())
        return {};
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    m_ui->lblImage->image().save(&buffer, "PNG");
    return bytes;
}

void DialogDataPerusahaan::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    const auto* profile = held<EntityDataPerusahaan>();
    m_imagePath.clear();
    QImage logo;
    if (profile->getLogo())
        logo = QImage::fromData(profile->getLogo()->getImageData(), "PNG");
    m_ui->lblImage->setImage(QPixmap::fromImage(logo));
}

void DialogDataPerusahaan::on_btnLoadImage_clicked()
{
    const QString start = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Image"), start, tr("Image Files (*.png)"));
    if (path.isEmpty())
        return;
    const QPixmap picture(path, "PNG");
    if (picture.isNull()) {
        showError(tr("The file is no PNG picture: %1").arg(path));
        return;
    }
    m_imagePath = path;
    m_ui->lblImage->setImage(picture);
}

void DialogDataPerusahaan::on_btnClear_clicked()
{
    m_imagePath.clear();
    m_ui->lblImage->setImage(QPixmap(":/images/brintel-200px.png"));
}
