#include "app/widgets/UnfinishedSave.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/system/KorFailure.h"
#include "kor/widgets/KorErrorBox.h"

QString UnfinishedSave::saved(const QString& number)
{
    return tr("%1 is saved. Please do not enter it again.").arg(number);
}

QString UnfinishedSave::laterByOk() { return tr("Later, open it from its list and press OK: that does the same."); }

bool UnfinishedSave::offer(QWidget* parent, KorBusinessLogic* service) const
{
    // After the first attempt "Later" is the default, so that pressing Return repeatedly ends the loop.
    auto byDefault = QMessageBox::Yes;
    do {
        KorToldFailure failure = KorToldFailure::in(service->takeErrors());
        // The advice is for a failed save, but this record is saved.
        failure.advice.clear();
        QStringList lines{done, tr("Not done yet: %1.").arg(missing), QString(), failure.text().trimmed(), QString()};
        lines.append(tr("Do you want to have it done now?"));
        if (!later.isEmpty())
            lines.append(later);
        if (!KorErrorBox::ask(parent, tr("Error"), lines.join("\r\n"), failure.details, tr("Finish Now"), tr("Later"),
                              byDefault))
            return false;
        service->clearErrors();
        byDefault = QMessageBox::No;
    } while (!finish());
    return true;
}
