#pragma once

#include "kor/widgets/KorDialog.h"

#include <QMap>

class AppNumberEdit;
class EntityConfigPrinter;
class EntityPrinterType;
class QComboBox;
class QLabel;
class QPushButton;

/** Base of the printer forms: the common fields of the cashier's and the kitchens' printers. */
class PrinterConfigDialog : public KorDialog
{
    Q_OBJECT

public:
    using KorDialog::KorDialog;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** Call it after setupUi(); fills the combo boxes. */
    template <class Form>
    void usePrinterFields(const Form& form)
    {
        m_fields = {form.ddlPrinter, form.ddlPrinterType, form.lblCut,        form.ddlAutoCut,
                    form.ddlNoCopy,  form.txtCol,         form.txtBlankLines, form.btnTestSlip};
        fillChoices();
        watchChoices();
    }
    /** Adds the choice "no printer" after the printers; it is stored as an empty name. */
    void offerNoPrinter(const QString& words);
    /** A text to show after the description of the cut. */
    void setCutRemark(const QString& remark);
    void showPrinter(const EntityConfigPrinter& config);
    void readPrinter(EntityConfigPrinter& config) const;
    /** Shows an error box for a failed save. */
    void showSaveError(const QString& text);

private:
    struct Fields
    {
        QComboBox* printer;
        QComboBox* printerType;
        QLabel* cut;
        QComboBox* autoCut;
        QComboBox* copies;
        AppNumberEdit* columns;
        AppNumberEdit* blankLines;
        QPushButton* testSlip;
    };

    void fillChoices();
    void fillTypes();
    void watchChoices();
    [[nodiscard]] EntityPrinterType* readType() const;
    /** Shows how the chosen type cuts the paper, and a better type if its cut sequence is incomplete. */
    void tellCut();
    [[nodiscard]] QString cutWords(const QString& type) const;
    /** Reserves space for the longest description, so that the form does not move when another type is chosen. */
    void keepRoomForCut();
    void printTestSlip();

    Fields m_fields{};
    bool m_hasPrinters = false;
    QString m_cutRemark;
    // The cut sequences by name of type.
    QMap<QString, QString> m_cuts;
};
