#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityKomisiAgenDetail;

namespace Ui
{
class DialogSetPercentage;
}

/** Gives one invoice of a commission payment another percent than the agent's own. The line is borrowed. */
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
