#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityKomisiAgenDetail;

namespace Ui
{
class DialogSetPercentage;
}

/** Changes the commission percentage of one invoice in a commission payment. The line is borrowed. */
class DialogSetPercentage final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogSetPercentage(QWidget* parent = nullptr);
    ~DialogSetPercentage() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    void on_txtPerc_textChanged(const QString& text);

private:
    std::unique_ptr<Ui::DialogSetPercentage> m_ui;
    EntityKomisiAgenDetail* m_line = nullptr;
};
