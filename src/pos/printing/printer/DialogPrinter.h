#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class DialogPrinter;
}

/** Lists the printers for slips. */
class DialogPrinter final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogPrinter(QWidget* parent = nullptr);
    ~DialogPrinter() override;

private slots:
    void on_pushButton_clicked();

private:
    std::unique_ptr<Ui::DialogPrinter> m_ui;
};
