#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityPartPayment;

namespace Ui
{
class PartPaymentDialog;
}

/** Asks for the amount to pay for one document. The line is borrowed; only getEntity() writes to it. */
class PartPaymentDialog : public KorDialog
{
    Q_OBJECT

public:
    ~PartPaymentDialog() override;

    bool validate() override;
    /** Asks for confirmation if the amount is larger than what is due. */
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* line) override;

public slots:
    void on_txtPaid_textChanged(const QString& text);

protected:
    struct Words
    {
        QString title;
        /** The label of the document's number. */
        QString number;
        QString wrongAmount;
    };

    PartPaymentDialog(const Words& words, QWidget* parent);

    /** Also allows zero, which removes the document from the payment. */
    void allowNothing() { m_mayBeNothing = true; }

private:
    /** In minor units, like the other amounts of this class. */
    [[nodiscard]] double entered() const;
    [[nodiscard]] double remaining() const { return m_due - entered(); }

    std::unique_ptr<Ui::PartPaymentDialog> m_ui;
    QString m_wrongAmount;
    bool m_mayBeNothing = false;
    EntityPartPayment* m_line = nullptr;
    // The amount due before this payment.
    double m_due = 0;
};
