#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class DialogKeyboard;
}

/** A keyboard on the screen, prepared for touch tills: no form opens it yet, and its keys do not write so far. */
class DialogKeyboard final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogKeyboard(QWidget* parent = nullptr);
    ~DialogKeyboard() override;

private slots:
    void on_btn1_clicked();
    void on_btn2_clicked();
    void on_btn3_clicked();
    void on_btn4_clicked();
    void on_btn5_clicked();
    void on_btn6_clicked();
    void on_btn7_clicked();
    void on_btn8_clicked();
    void on_btn9_clicked();
    void on_btn0_clicked();
    void on_btnBackSpace_clicked();
    void on_btnQ_clicked();
    void on_btnW_clicked();
    void on_btnE_clicked();
    void on_btnR_clicked();
    void on_btnT_clicked();
    void on_btnY_clicked();
    void on_btnU_clicked();
    void on_btnI_clicked();
    void on_btnO_clicked();
    void on_btnP_clicked();
    void on_btnA_clicked();
    void on_btnS_clicked();
    void on_btnD_clicked();
    void on_btnF_clicked();
    void on_btnG_clicked();
    void on_btnH_clicked();
    void on_btnJ_clicked();
    void on_btnK_clicked();
    void on_btnL_clicked();
    void on_btnSemiColon_clicked();
    void on_btnEnter_clicked();
    void on_btnZ_clicked();
    void on_btnX_clicked();
    void on_btnC_clicked();
    void on_btnV_clicked();
    void on_btnB_clicked();
    void on_btnN_clicked();
    void on_btnM_clicked();
    void on_btnComma_clicked();
    void on_btnPeriod_clicked();
    void on_btn_clicked();
    void on_btnClear_clicked();
    void on_btnSpace_clicked();

private:
    std::unique_ptr<Ui::DialogKeyboard> m_ui;
};
