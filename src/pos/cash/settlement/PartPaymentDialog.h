#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityPartPayment;

namespace Ui
{
class PartPaymentDialog;
}

/** Takes the amount that is paid of one document. The line is borrowed; only getEntity() writes to it. */
class PartPaymentDialog : public KorDialog
{
    Q_OBJECT

public:
    ~PartPaymentDialog() override;

    bool validate() override;
    /** More than what is due is taken only when the cashier says so again. */
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* line) override;

public slots:
    void on_txtPaid_textChanged(const QString& text);

protected:
    struct Words
    {
        QString title;
        /** What the number of the document is called in the form. */
        QString number;
        QString wrongAmount;
    };

    PartPaymentDialog(const Words& words, QWidget* parent);

    /** Nothing may be entered, which takes the document off the payment again. */
    void allowNothing() { m_mayBeNothing = true; }

private:
    /** In minor units, as are the others. */
    [[nodiscard]] double entered() const;
    [[nodiscard]] double remaining() const { return m_due - entered(); }

    std::unique_ptr<Ui::PartPaymentDialog> m_ui;
    QString m_wrongAmount;
    bool m_mayBeNothing = false;
    EntityPartPayment* m_line = nullptr;
    // What is due before this payment.
    double m_due = 0;
};
