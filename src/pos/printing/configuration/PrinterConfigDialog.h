#pragma once

#include "kor/widgets/KorDialog.h"

#include <QMap>

class AppNumberEdit;
class EntityConfigPrinter;
class EntityPrinterType;
class QComboBox;
class QLabel;
class QPushButton;

/** Base of the printer forms: the fields that the cashier's and the kitchens' printers have in common. */
class PrinterConfigDialog : public KorDialog
{
    Q_OBJECT

public:
    using KorDialog::KorDialog;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** Takes the fields of a form that has been set up and fills their choices. */
    template <class Form>
    void usePrinterFields(const Form& form)
    {
        m_fields = {form.ddlPrinter, form.ddlPrinterType, form.lblCut,        form.ddlAutoCut,
                    form.ddlNoCopy,  form.txtCol,         form.txtBlankLines, form.btnTestSlip};
        fillChoices();
        watchChoices();
    }
    /** Offers to have no printer at all, behind those that there are; it is stored as an empty name. */
    void offerNoPrinter(const QString& words);
    /** Stands behind what the form says about the cut of the type. */
    void setCutRemark(const QString& remark);
    void showPrinter(const EntityConfigPrinter& config);
    void readPrinter(EntityConfigPrinter& config) const;
    /** Shows why saving failed. */
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
    /** What the chosen type does to the paper, and which one to take where it lacks something. */
    void tellCut();
    [[nodiscard]] QString cutWords(const QString& type) const;
    /** Room for the longest of these words, so that the form stands still while the types are looked through. */
    void keepRoomForCut();
    void printTestSlip();

    Fields m_fields{};
    bool m_hasPrinters = false;
    QString m_cutRemark;
    // The cut sequences of the types by their names.
    QMap<QString, QString> m_cuts;
};
