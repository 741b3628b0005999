#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityPiutangDetail;

namespace Ui
{
class DialogBayarPiutang;
}

/** Takes the amount that a member pays of one invoice. The line is borrowed. */
class DialogBayarPiutang final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogBayarPiutang(QWidget* parent = nullptr);
    ~DialogBayarPiutang() override;

    bool validate() override;
    /** More than what is due is taken only when the cashier says so again. */
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

public slots:
    void on_txtPaid_textChanged(const QString& text);

private:
    [[nodiscard]] double remaining() const;

    std::unique_ptr<Ui::DialogBayarPiutang> m_ui;
    EntityPiutangDetail* m_line = nullptr;
    // What is due before this payment.
    double m_due = 0;
};
