#pragma once

#include "kor/widgets/KorDialog.h"

class AppNumberEdit;
class EntityConfigPrinter;
class QComboBox;

/** Base of the printer forms: the fields that the cashier's and the kitchens' printers have in common. */
class PrinterConfigDialog : public KorDialog
{
    Q_OBJECT

public:
    using KorDialog::KorDialog;

protected:
    /** Takes the fields of a form that has been set up and fills their choices. */
    template <class Form>
    void usePrinterFields(const Form& form)
    {
        m_fields = {form.ddlPrinter, form.ddlPrinterType, form.ddlAutoCut,
                    form.ddlNoCopy,  form.txtCol,         form.txtBlankLines};
        fillChoices();
    }
    void showPrinter(const EntityConfigPrinter& config);
    void readPrinter(EntityConfigPrinter& config) const;
    /** Shows why saving failed. */
    void showSaveError(const QString& text);

private:
    struct Fields
    {
        QComboBox* printer;
        QComboBox* printerType;
        QComboBox* autoCut;
        QComboBox* copies;
        AppNumberEdit* columns;
        AppNumberEdit* blankLines;
    };

    void fillChoices();

    Fields m_fields{};
    bool m_hasPrinters = false;
};
