#include "kor/widgets/DialogKeyboard.h"

#include "ui_DialogKeyboard.h"

DialogKeyboard::DialogKeyboard(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::DialogKeyboard>())
{
    m_ui->setupUi(this);
}

DialogKeyboard::~DialogKeyboard() = default;

void DialogKeyboard::on_btn1_clicked() {}
void DialogKeyboard::on_btn2_clicked() {}
void DialogKeyboard::on_btn3_clicked() {}
void DialogKeyboard::on_btn4_clicked() {}
void DialogKeyboard::on_btn5_clicked() {}
void DialogKeyboard::on_btn6_clicked() {}
void DialogKeyboard::on_btn7_clicked() {}
void DialogKeyboard::on_btn8_clicked() {}
void DialogKeyboard::on_btn9_clicked() {}
void DialogKeyboard::on_btn0_clicked() {}
void DialogKeyboard::on_btnBackSpace_clicked() {}
void DialogKeyboard::on_btnQ_clicked() {}
void DialogKeyboard::on_btnW_clicked() {}
void DialogKeyboard::on_btnE_clicked() {}
void DialogKeyboard::on_btnR_clicked() {}
void DialogKeyboard::on_btnT_clicked() {}
void DialogKeyboard::on_btnY_clicked() {}
void DialogKeyboard::on_btnU_clicked() {}
void DialogKeyboard::on_btnI_clicked() {}
void DialogKeyboard::on_btnO_clicked() {}
void DialogKeyboard::on_btnP_clicked() {}
void DialogKeyboard::on_btnA_clicked() {}
void DialogKeyboard::on_btnS_clicked() {}
void DialogKeyboard::on_btnD_clicked() {}
void DialogKeyboard::on_btnF_clicked() {}
void DialogKeyboard::on_btnG_clicked() {}
void DialogKeyboard::on_btnH_clicked() {}
void DialogKeyboard::on_btnJ_clicked() {}
void DialogKeyboard::on_btnK_clicked() {}
void DialogKeyboard::on_btnL_clicked() {}
void DialogKeyboard::on_btnSemiColon_clicked() {}
void DialogKeyboard::on_btnEnter_clicked() {}
void DialogKeyboard::on_btnZ_clicked() {}
void DialogKeyboard::on_btnX_clicked() {}
void DialogKeyboard::on_btnC_clicked() {}
void DialogKeyboard::on_btnV_clicked() {}
void DialogKeyboard::on_btnB_clicked() {}
void DialogKeyboard::on_btnN_clicked() {}
void DialogKeyboard::on_btnM_clicked() {}
void DialogKeyboard::on_btnComma_clicked() {}
void DialogKeyboard::on_btnPeriod_clicked() {}
void DialogKeyboard::on_btn_clicked() {}
void DialogKeyboard::on_btnClear_clicked() {}
void DialogKeyboard::on_btnSpace_clicked() {}
