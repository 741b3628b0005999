#include "zavel/dinein/DialogBayarMakanDitempatDetailSplit.h"

#include "pos/invoice/EntityInvoiceDetail.h"

#include "ui_DialogBayarMakanDitempatDetailSplit.h"

#include <QMessageBox>

namespace
{
constexpr int groupCount = 10;
}

DialogBayarMakanDitempatDetailSplit::DialogBayarMakanDitempatDetailSplit(QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogBayarMakanDitempatDetailSplit>())
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
    for (int group = 1; group <= groupCount; ++group) {
        const QString name = tr("Grp %1").arg(group);
        m_ui->ddlGroupSplit->addItem(name, name);
    }
    focusLater(m_ui->txtQtySplit);
}

DialogBayarMakanDitempatDetailSplit::~DialogBayarMakanDitempatDetailSplit() = default;

void DialogBayarMakanDitempatDetailSplit::setEntity(KorEntity* line)
{
    m_line = static_cast<EntityInvoiceDetail*>(line);
    m_ui->txtCode->setText(m_line->getItem()->getKode());
    m_ui->txtName->setText(m_line->getItem()->getNama());
    // The whole quantity, including what is already split off: it can be split again.
    m_ui->txtQty->setValue(m_line->getQty() + m_line->qtySplit());
    m_ui->txtQtySplit->setValue(m_line->qtySplit());
    const int group = m_ui->ddlGroupSplit->findData(m_line->splitGroup());
    m_ui->ddlGroupSplit->setCurrentIndex(std::max(group, 0));
}

bool DialogBayarMakanDitempatDetailSplit::validate()
{
    if (checkNumbers() && m_ui->txtQtySplit->value() > m_ui->txtQty->value()) {
        // Shown once in a message box; then the field is ready for another number.
        QMessageBox::information(this, tr("Info"),
                                 tr("Split number should be less than equal to the number of orders"));
        m_ui->txtQtySplit->setFocus(Qt::OtherFocusReason);
        m_ui->txtQtySplit->selectAll();
        return false;
    }
    return !hasError();
}

KorEntity* DialogBayarMakanDitempatDetailSplit::getEntity()
{
    m_line->setQtySplit(qRound(m_ui->txtQtySplit->value()));
    m_line->setSplitGroup(m_line->qtySplit() > 0 ? m_ui->ddlGroupSplit->currentData().toString() : QString());
    return m_line;
}
