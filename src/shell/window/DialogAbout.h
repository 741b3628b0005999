#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class DialogAbout;
}

/** Shows what the program is, its version, and the software that it uses. */
class DialogAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent = nullptr);
    ~DialogAbout() override;

private:
    std::unique_ptr<Ui::DialogAbout> m_ui;
};
